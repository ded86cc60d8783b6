#pragma once

#include "cli/PublishOptions.h"

// Makes a book from a PDF, and with watch again after each change until Ctrl-C. Throws
// CommandError.
void runPublish(const PublishOptions& options);
