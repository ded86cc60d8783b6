#include "worker/Seclusion.h"

#include "platform/EngineLimits.h"
#include "platform/Log.h"
#include "platform/Walls.h"

#include <iostream>

void seclude(const QString& pdf, const QString& workFolder) {
    Log::end(); // walls keep in the thread that raises them
    Walls::raise({pdf, workFolder, EngineLimits::maxProcessMemory, EngineLimits::maxPageFileSize});
    std::cout << "here" << std::endl;
}
