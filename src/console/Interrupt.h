#pragma once

// Turns SIGINT, SIGTERM and SIGHUP into a flag, instead of ending the program at once.
namespace Interrupt {

// From now on these signals only set the flag, and writing to a closed pipe fails without SIGPIPE.
void watch();

bool wasRequested();

} // namespace Interrupt
