#pragma once

#include "pdf/PDFLimits.h"

#include <QStringList>
#include <cstddef>

// Enters the sandbox, since a PDF may be built to take over the process: only those files and that
// folder, unless it is null, stay accessible. fileSize: of the largest file that may be written, in
// bytes. Then prints "here". Call it before the file is
// opened: as long as a worker has not printed that, the program that started it may conclude that
// it does not run here and read the file itself.
void enterWorkerSandbox(const QStringList& files, const QString& workFolder,
                        std::size_t fileSize = PDFLimits::maxPageFileSize);
