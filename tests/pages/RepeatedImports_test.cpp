#include "pages/ImportPDFOperation.h"
#include "pages/PageImage.h"

#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// What a sanitizer keeps of freed memory grows without end; it looks for leaks itself at the end.
#ifdef FOLVERO_SANITIZED
constexpr int rounds = 10;
#else
constexpr int rounds = 200;
#endif
constexpr int warmUp = rounds / 4;
[[maybe_unused]] constexpr qint64 toleratedBytes = 512 << 10;

// The most memory that this process has had so far.
qint64 peakBytes() {
    for (const QByteArray& line :
         TestFiles::read(QStringLiteral("/proc/self/status")).split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLongLong() * 1024;
    }
    return -1;
}

template <class Work>
void expectFlatPeak(Work work) {
    for (int i = 0; i < warmUp; ++i)
        work();
    const qint64 before = peakBytes();
    ASSERT_GT(before, 0);
    for (int i = warmUp; i < rounds; ++i)
        work();
#ifndef FOLVERO_SANITIZED
    EXPECT_LE(peakBytes() - before, toleratedBytes);
#endif
}

} // namespace

TEST(RepeatedImports, HoldOnToNoMemory) {
    expectFlatPeak([] {
        const auto operation = std::make_shared<ImportPDFOperation>(
            Program::sample(QStringLiteral("sample.pdf")), QStringLiteral("1-2"), 144, 100);
        operation->setImportLinks(true);
        operation->setImportBookmarks(true);
        OperationQueue queue;
        queue.addOperation(operation);
        queue.waitUntilAllOperationsAreFinished();
        ASSERT_TRUE(operation->failures().isEmpty());
        ASSERT_TRUE(operation->flashOutline());
        ASSERT_EQ(operation->flashPageSource()->normalPages().size(), 2U);
    });
}

// The engine itself, which imports leave to other processes.
TEST(RepeatedImports, HoldOnToNoMemoryOfTheEngine) {
    QTemporaryDir folder;
    expectFlatPeak([&] {
        const auto document = PDFDocument::open(Program::sample(QStringLiteral("sample.pdf")));
        ASSERT_FALSE(document->outline().empty());
        for (int i = 0; i < document->pageCount(); ++i)
            document->page(i).annotations();
        PageImageMaker maker(*document, 1.0);
        maker.make(1, folder.filePath(QStringLiteral("1.jpg")), {});
        maker.make(2, folder.filePath(QStringLiteral("2.jpg")), {});
    });
}
