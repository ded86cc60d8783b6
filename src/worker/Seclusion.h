#pragma once

#include <QString>

// Leaves this process nothing but that PDF, and that folder unless it is null: the file may be made
// to take the process over.
void seclude(const QString& pdf, const QString& workFolder);
