#include "worker/WorkerSandbox.h"

#include "base/Log.h"
#include "system/Sandbox.h"

#include <iostream>

void enterWorkerSandbox(const QStringList& files, const QString& workFolder, std::size_t fileSize) {
    Log::end(); // ends log4cplus's threads: file rules cover the calling thread only
    Sandbox::enter({files, workFolder, PDFLimits::maxProcessMemory, fileSize});
    std::cout << "here" << std::endl;
}
