#include "worker/WorkerSandbox.h"

#include "platform/Log.h"
#include "platform/PDFLimits.h"
#include "platform/Sandbox.h"

#include <iostream>

void enterWorkerSandbox(const QString& pdf, const QString& workFolder) {
    Log::end(); // walls keep in the thread that raises them
    Sandbox::enter({pdf, workFolder, PDFLimits::maxProcessMemory, PDFLimits::maxPageFileSize});
    std::cout << "here" << std::endl;
}
