#pragma once

#include "cli/LibraryOptions.h"

// Prints the batch script that makes a library on a cluster with Slurm, a shard of the list in each
// task of a job array. Throws CommandError.
void runLibraryBatch(const LibraryBatchOptions& options);
