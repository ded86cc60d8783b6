#pragma once

#include "Samples.h"

// The main function of a program that writes documents into the folder named by its argument, or
// `benchmarks`, if there are any, with --bench. Returns an exit code; errors are printed.
int writeSamples(int argc, char** argv, std::vector<Sample> (*samples)(),
                 std::vector<Sample> (*benchmarks)() = nullptr);
