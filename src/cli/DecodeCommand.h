#pragma once

#include <QString>

// Prints the deciphered configuration of a published book: its folder, or its UserConfig.bin.
// Throws CommandError.
void runDecode(const QString& book, bool json);
