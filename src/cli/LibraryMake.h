#pragma once

#include "cli/LibraryOptions.h"

// Makes the books of a list. Throws CommandError; the exit code is that of the worst book.
void runLibraryMake(const LibraryMakeOptions& options);
