#include "pages/ImportPDFOperation.h"
#include "pages/PageImage.h"

#include "support/Program.h"

#include <QTemporaryDir>
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
    queue.waitUntilAllOperationsAreFinished();
    ASSERT_TRUE(operation->failures().isEmpty());
    ASSERT_EQ(operation->flashPageSource()->normalPages().size(), 2U);
}

// In this process, while imports leave that to others.
void readAndDrawSample(const QString& picture) {
    const auto document = PDFDocument::open(Program::sample("sample.pdf"));
    ASSERT_FALSE(document->outline().empty());
    for (int i = 0; i < document->pageCount(); ++i)
        document->page(i).annotations();
    PageImageMaker maker(*document, 1.0);
    maker.make(1, picture, {});
    maker.make(2, picture, {});
}

} // namespace

TEST(RepeatedImports, HoldOnToNoMemory) {
#ifdef FOLVERO_SANITIZED
    GTEST_SKIP() << "what a sanitizer keeps of freed memory grows without end";
#endif
    const QTemporaryDir folder;
    long before = 0; // the most memory that this process has had, in KiB
    rusage usage{};
    for (int round = 0; round < 200; ++round) {
        importSample();
        readAndDrawSample(folder.filePath("picture.jpg"));
        ::getrusage(RUSAGE_SELF, &usage);
        if (round == 50)
            before = usage.ru_maxrss;
    }
    EXPECT_LE(usage.ru_maxrss - before, 512);
}
