#pragma once

#include "base/ErrorKind.h"

// Exit codes, documented in docs/command-line.md.
enum class ExitCode : int {
    ok = 0,
    failed = 1,       // nothing was made; the same command will fail again
    usage = 2,        // invalid command line
    incomplete = 3,   // the book was made, but pages are missing
    badDocument = 65, // nothing was made: the document is at fault
    tryAgain = 75,    // nothing was made; the cause may pass: a full disk, an unmounted share
    noPassword = 77,  // nothing was made: the document needs a password, or another one
    cancelled = 130,  // cancelled by Ctrl-C, as shells report it; nothing was made
};

// The code for an error of a kind. One whose reason is temporary (see Message) is tryAgain instead.
ExitCode exitCodeFor(ErrorKind kind);
