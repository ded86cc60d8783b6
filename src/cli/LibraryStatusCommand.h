#pragma once

#include <QString>

// Prints what has come of the books of a library. Throws CommandError with the exit code of the
// worst of them unless all are done.
void runLibraryStatus(const QString& folder, bool asJson);
