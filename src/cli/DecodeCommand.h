#pragma once

#include <QString>

// Prints the decrypted configuration of a published book, given by its folder or its
// UserConfig.bin. Throws CommandError.
void runDecode(const QString& book, bool json);
