#include "pages/ImportPDFOperation.h"

#include "support/Program.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

void importSample() {
    const auto operation =
        std::make_shared<ImportPDFOperation>(Program::sample("sample.pdf"), "1-2", 144, 100);
    operation->setImportLinks(true);
    operation->setImportBookmarks(true);
    OperationQueue queue;
    queue.addOperation(operation);
    queue.waitFor(-1);
    ASSERT_TRUE(operation->failures().isEmpty());
    ASSERT_EQ(operation->flashPageSource()->normalPages().size(), 2U);
}

} // namespace

TEST(RepeatedImports, HoldOnToNoMemory) {
#ifdef FOLVERO_SANITIZED
    GTEST_SKIP() << "what a sanitizer keeps of freed memory grows without end";
#endif
    long before = 0; // the most memory that this process has had, in KiB
    rusage usage{};
    for (int round = 0; round < 200; ++round) {
        importSample();
        ::getrusage(RUSAGE_SELF, &usage);
        if (round == 50)
            before = usage.ru_maxrss;
    }
    EXPECT_LE(usage.ru_maxrss - before, 512);
}
