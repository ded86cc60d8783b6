#include "system/Processors.h"

#include "support/TemplateLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <limits>

TEST(Processors, KeepToTheSmallestQuotaOfACgroupAndItsParents) {
    constexpr double none = std::numeric_limits<double>::infinity();
    const struct {
        const char* membership;
        std::map<QString, QByteArray> files;
        double expected;
    } cases[] = {
        {"0::/a/b\n", {}, none},
        {"0::/a/b\n", {{"a/b/cpu.max", "max 100000\n"}}, none},
        {"0::/a/b\n", {{"a/b/cpu.max", "150000 100000\n"}}, 1.5},
        {"0::/a/b\n", {{"a/b/cpu.max", "400000 100000"}, {"a/cpu.max", "100000 50000"}}, 2},
        {"0::/a/b\n", {{"a/b/cpu.max", "max 100000"}, {"c/cpu.max", "100000 100000"}}, none},
        {"0::/\n", {{"cpu.max", "300000 100000\n"}}, 3},
        {"0::/of/the/host\n", {{"cpu.max", "300000 100000\n"}}, 3},
        {"1:memory:/m\n0::/a\n", {{"unified/a/cpu.max", "50000 100000\n"}}, 0.5},
        {"4:cpu,cpuacct:/a\n",
         {{"cpu,cpuacct/a/cpu.cfs_quota_us", "250000\n"},
          {"cpu,cpuacct/a/cpu.cfs_period_us", "100000\n"}},
         2.5},
        {"4:cpuacct,cpu:/a/b\n1:cpuset:/s\n0::/\n",
         {{"cpu/a/b/cpu.cfs_quota_us", "-1\n"},
          {"cpu/a/b/cpu.cfs_period_us", "100000\n"},
          {"cpu/cpu.cfs_quota_us", "700000\n"},
          {"cpu/cpu.cfs_period_us", "100000\n"}},
         7},
    };
    for (const auto& [membership, files, expected] : cases) {
        const QTemporaryDir folder;
        for (const auto& [name, content] : files) {
            const QString path = folder.filePath(name);
            QDir().mkpath(QFileInfo(path).path());
            TestFiles::write(path, content);
        }
        TestFiles::write(folder.filePath("self"), membership);
        EXPECT_EQ(Processors::cgroupQuota(folder.filePath("self"), folder.path()), expected)
            << membership << files.size();
    }
}
