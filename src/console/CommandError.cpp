#include "console/CommandError.h"

CommandError CommandError::from(const std::exception& failure) {
    if (const auto* command = dynamic_cast<const CommandError*>(&failure))
        return *command;
    if (const auto* known = dynamic_cast<const PlatformException*>(&failure))
        return CommandError(*known);
    return CommandError(Messages{Message::ofException(failure)});
}
