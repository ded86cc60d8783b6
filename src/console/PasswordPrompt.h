#pragma once

#include <QByteArray>

// Asks for a password on the terminal, wherever the standard streams lead, without showing what is
// typed. Throws CommandError when there is no terminal, and for Ctrl-C and Ctrl-D.
QByteArray askForPassword();
