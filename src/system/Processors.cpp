#include "system/Processors.h"

#include "system/Files.h"

#include <QFile>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <sched.h>
#include <thread>

namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

// Both in microseconds. The quota is "max" or -1 when there is none.
double ratio(const QByteArray& quota, const QByteArray& period) {
    const double time = quota.trimmed().toDouble();
    const double of = period.trimmed().toDouble();
    return time > 0 && of > 0 ? time / of : unlimited;
}

double quotaOf(const QString& cgroup) {
    const auto contents = [&](const char* name) {
        return Files::contents(Files::join(cgroup, QLatin1String(name)));
    };
    const QByteArrayList version2 = contents("cpu.max").simplified().split(' ');
    return std::min(ratio(version2.value(0), version2.value(1)),
                    ratio(contents("cpu.cfs_quota_us"), contents("cpu.cfs_period_us")));
}

// Of the cgroup at that path and of its parents. In a container the path may be that outside of it,
// and only the parents of it are there.
double smallestQuota(const QString& mount, const QString& path) {
    double smallest = quotaOf(mount);
    for (QString cgroup = path; cgroup.size() > 1; cgroup.truncate(cgroup.lastIndexOf(u'/')))
        smallest = std::min(smallest, quotaOf(mount + cgroup));
    return smallest;
}

int affinity() {
    std::array<cpu_set_t, 16> processors{}; // more than any machine has
    if (::sched_getaffinity(0, sizeof processors, processors.data()) == 0)
        return CPU_COUNT_S(sizeof processors, processors.data());
    return int(std::thread::hardware_concurrency());
}

} // namespace

double Processors::cgroupQuota(const QString& membership, const QString& root) {
    double smallest = unlimited;
    for (const QString& line : QString::fromUtf8(Files::contents(membership)).split(u'\n')) {
        // "ID:CONTROLLERS:PATH"; version 2 names no controllers.
        const QString controllers = line.section(u':', 1, 1);
        const QString path = line.section(u':', 2);
        QStringList mounts;
        if (line.startsWith(QStringLiteral("0::")))
            mounts = {root, Files::join(root, QStringLiteral("unified"))};
        else if (controllers.split(u',').contains(QStringLiteral("cpu")))
            mounts = {Files::join(root, controllers), Files::join(root, QStringLiteral("cpu"))};
        for (const QString& mount : mounts)
            smallest = std::min(smallest, smallestQuota(mount, path));
    }
    return smallest;
}

int Processors::available() {
    const double quota =
        cgroupQuota(QStringLiteral("/proc/self/cgroup"), QStringLiteral("/sys/fs/cgroup"));
    return int(std::max(1.0, std::min<double>(affinity(), std::ceil(quota))));
}
