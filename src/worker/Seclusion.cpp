#include "worker/Seclusion.h"

#include "platform/EngineLimits.h"
#include "platform/Log.h"
#include "platform/Walls.h"

void seclude(const QString& pdf, const QString& workFolder) {
    const Walls::Strength strength =
        Walls::raise({pdf, workFolder, EngineLimits::maxProcessMemory});
    const Log log("Seclusion");
    if (!strength.files)
        log.debug(QStringLiteral("this system can't close files off from a process"));
    if (!strength.calls)
        log.debug(QStringLiteral("this system can't close calls off from a process"));
}
