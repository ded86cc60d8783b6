#include "platform/PDFReader.h"

#include "platform/PDFSerialization.h"
#include "platform/PlatformException.h"
#include "support/TemplateLibrary.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

// Readers that are shell scripts: what happens when the process that reads is not well.
class PDFReaderTest : public testing::Test {
protected:
    std::unique_ptr<PDFReader> reader(const QByteArray& script) {
        const QString program = iFolder.filePath(QStringLiteral("reader"));
        TestFiles::write(program, "#!/bin/sh\ncount=" + PDFSerialization::pack(3).toBase64() +
                                      "\n" + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        auto made =
            std::make_unique<PDFReader>(QStringLiteral("none.pdf"), [this] { return iStop; });
        made->setProgram(program);
        made->setTimeout(1s);
        return made;
    }

    QTemporaryDir iFolder;
    bool iStop = false;
};

template <class Question>
QString failureOf(Question question) {
    try {
        question();
    } catch (const PlatformException& failure) {
        return failure.name();
    }
    return {};
}

PDFOutlineNode nested(int depth) {
    PDFOutlineNode node{QStringLiteral("level %1").arg(depth), depth, {}};
    if (depth > 0)
        node.children.push_back(nested(depth - 1));
    return node;
}

} // namespace

TEST_F(PDFReaderTest, LeavesTheFileToItsOwnerWhenThereIsNoProgramToReadIt) {
    EXPECT_FALSE(reader("exit 127\n")->open());
    const auto none = reader("");
    none->setProgram(iFolder.filePath(QStringLiteral("missing")));
    EXPECT_FALSE(none->open());
}

TEST_F(PDFReaderTest, TellsWhatEndsTheProgramAndStopsTrying) {
    EXPECT_EQ(failureOf([&] { reader("echo here\nkill -SEGV $$\n")->open(); }),
              QStringLiteral("PDFReaderEnded"));
    EXPECT_EQ(failureOf([&] { reader("exec sleep 100\n")->open(); }),
              QStringLiteral("PDFReaderTimeout"));

    const auto ends =
        reader("echo here\necho \"ok $count\"\nread question\necho x >>" +
               QFile::encodeName(iFolder.filePath(QStringLiteral("tries"))) + "\nkill -SEGV $$\n");
    ASSERT_TRUE(ends->open());
    EXPECT_EQ(ends->pageCount(), 3);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(failureOf([&] { ends->boxes(0); }), QStringLiteral("PDFReaderEnded"));
    EXPECT_EQ(TestFiles::read(iFolder.filePath(QStringLiteral("tries"))), "x\nx\nx\n");
}

TEST_F(PDFReaderTest, StopsWaitingWhenTold) {
    iStop = true;
    EXPECT_EQ(failureOf([&] { reader("exec sleep 100\n")->open(); }),
              QStringLiteral("PDFReadStopped"));
}

// Whoever has taken the other process over may say anything.
TEST_F(PDFReaderTest, RefusesAnswersThatMakeNoSense) {
    const auto answers = [&](const QByteArray& packed) {
        auto made = reader("echo here\necho \"ok $count\"\nwhile read question; do echo ok " +
                           packed.toBase64() + "; done\n");
        EXPECT_TRUE(made->open());
        return failureOf([&] { made->outline(); });
    };
    const QString garbled = QStringLiteral("PDFReaderMalformedAnswer");
    EXPECT_EQ(answers(""), garbled);
    EXPECT_EQ(answers(QByteArray::fromHex("ffffffff")), garbled);
    EXPECT_EQ(answers(QByteArray::fromHex("000000017fffffff")), garbled);
    EXPECT_EQ(answers(PDFSerialization::pack(std::vector{nested(200)})), garbled);
    EXPECT_EQ(answers(PDFSerialization::pack(std::vector{nested(64)})), QString());
}

TEST_F(PDFReaderTest, PassesReasonsOn) {
    try {
        reader("echo here\necho 'fail PDFOpenFailed none.pdf: is damaged beyond repair (no "
               "objects)'\n")
            ->open();
        FAIL();
    } catch (const PlatformException& failure) {
        EXPECT_EQ(failure.reason(),
                  QStringLiteral("none.pdf: is damaged beyond repair (no objects)"));
    }
}

// Then this process would read the file itself, as when there is no such program.
TEST_F(PDFReaderTest, DoesNotLetTheFileTalkItOutOfUsingTheProgram) {
    EXPECT_EQ(failureOf([&] { reader("echo here\nexit 127\n")->open(); }),
              QStringLiteral("PDFReaderEnded"));
    EXPECT_EQ(failureOf([&] { reader("echo here\necho fail ProcessStartFailed x\n")->open(); }),
              QStringLiteral("PDFReaderMalformedAnswer"));
    EXPECT_EQ(failureOf([&] { reader("echo \"ok $count\"\n")->open(); }),
              QStringLiteral("PDFReaderMalformedAnswer"));
}

TEST_F(PDFReaderTest, IsNotHeldUpByAProgramThatReadsNoQuestions) {
    const auto deaf = reader("echo here\necho \"ok $count\"\nexec sleep 100\n");
    ASSERT_TRUE(deaf->open());
    const QByteArray key(4 << 20, 'k');
    EXPECT_EQ(failureOf([&] { deaf->information(key.constData()); }),
              QStringLiteral("PDFReaderTimeout"));
}
