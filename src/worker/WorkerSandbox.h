#pragma once

#include <QString>

// Enters the sandbox, since the PDF may be built to take over the process: only that file and that
// folder, unless it is null, stay accessible. Then prints "here". Call it before the file is
// opened: as long as a worker has not printed that, the program that started it may conclude that
// it does not run here and read the file itself.
void enterWorkerSandbox(const QString& pdf, const QString& workFolder);
