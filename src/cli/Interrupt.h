#pragma once

// Ctrl-C and the request to terminate, as a flag to look at rather than a sudden death.
namespace Interrupt {

// From here on the two signals only raise the flag.
void watch();

bool wasRequested();

} // namespace Interrupt
