#pragma once

#include <QString>

// The processors that this process may use, which may be fewer than the machine has.
namespace Processors {

// At least 1: those of the CPU affinity, but no more than cgroupQuota(), rounded up.
int available();

// How many processors' worth of time the cgroups of a process allow it, the parents of its cgroup
// included; infinite without a quota. membership is a file like /proc/self/cgroup, root the folder
// where cgroups of version 1, 2 or both are mounted.
double cgroupQuota(const QString& membership, const QString& root);

} // namespace Processors
