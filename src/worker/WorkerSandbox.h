#pragma once

#include <QString>

// Leaves this process nothing but that PDF, and that folder unless it is null: the file may be made
// to take the process over. Then says "here", to be called before the file is opened: whoever has
// started the process may read the file without walls as long as it has not been heard of.
void enterWorkerSandbox(const QString& pdf, const QString& workFolder);
