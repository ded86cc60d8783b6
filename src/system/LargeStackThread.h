#pragma once

#include <cstddef>
#include <functional>

// Runs work on a separate thread with a stack of that many bytes and waits for it to finish: for
// libraries that recurse as deeply as their input is nested. Exceptions are rethrown to the caller.
// False when the thread can't be created; work has not run then.
bool runWithLargeStack(std::size_t stackBytes, const std::function<void()>& work);
