#include "worker/WorkerSandbox.h"

#include "base/Log.h"
#include "pdf/PDFLimits.h"
#include "system/Sandbox.h"

#include <iostream>

void enterWorkerSandbox(const QString& pdf, const QString& workFolder) {
    Log::end(); // ends log4cplus's threads: file rules cover the calling thread only
    Sandbox::enter({pdf, workFolder, PDFLimits::maxProcessMemory, PDFLimits::maxPageFileSize});
    std::cout << "here" << std::endl;
}
