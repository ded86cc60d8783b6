#pragma once

#include <cstddef>
#include <functional>

// Runs work on a thread of its own with a stack of that many bytes and waits for its end: for
// libraries that call themselves as deep as their input nests. False when there is no such thread
// to be had; then nothing was run.
bool runWithLargeStack(std::size_t stackBytes, const std::function<void()>& work);
