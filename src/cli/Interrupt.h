#pragma once

// Ctrl-C, the request to terminate and a terminal that is closed, as a flag to look at rather than
// a sudden death.
namespace Interrupt {

// From here on these signals only raise the flag, and writing to a pipe that nobody reads fails
// without one.
void watch();

bool wasRequested();

} // namespace Interrupt
