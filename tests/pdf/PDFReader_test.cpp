#include "pdf/PDFReader.h"

#include "pdf/PDFLimits.h"
#include "pdf/PDFSerialization.h"
#include "support/FailureOf.h"
#include "support/TemplateLibrary.h"

#include <QFile>
#include <QTemporaryDir>
#include <climits>
#include <gtest/gtest.h>
#include <limits>

using namespace std::chrono_literals;

namespace {

// Readers that are shell scripts: what happens when the process that reads is not well.
class PDFReaderTest : public testing::Test {
protected:
    std::unique_ptr<PDFReader> reader(const QByteArray& script,
                                      std::chrono::milliseconds patience = 60s) {
        const QString program = iFolder.filePath("reader");
        TestFiles::write(program, "#!/bin/sh\nread password\ncount=" +
                                      PDFSerialization::pack(3).toBase64() + "\n" + script);
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        auto made = std::make_unique<PDFReader>("none.pdf", [this] { return iStop; });
        made->setProgram(program);
        made->setTimeout(patience);
        return made;
    }

    QString failureOfOpening(const QByteArray& script, std::chrono::milliseconds patience = 60s) {
        return failureOf([&] { reader(script, patience)->start(); }).name;
    }

    QTemporaryDir iFolder;
    bool iStop = false;
};

PDFOutlineNode nested(int depth) {
    PDFOutlineNode node{QString("level %1").arg(depth), depth, {}};
    if (depth > 0)
        node.children.push_back(nested(depth - 1));
    return node;
}

} // namespace

TEST_F(PDFReaderTest, LeavesTheFileToItsOwnerWhenThereIsNoProgramToReadIt) {
    EXPECT_FALSE(reader("exit 127\n")->start());
    const auto none = reader("");
    none->setProgram(iFolder.filePath("missing"));
    EXPECT_FALSE(none->start());
}

TEST_F(PDFReaderTest, ReportsWhatEndsTheProgramAndStopsTrying) {
    EXPECT_EQ(failureOfOpening("echo here\nkill -SEGV $$\n"), "PDFReaderEnded");
    EXPECT_EQ(failureOfOpening("exec sleep 100\n", 100ms), "PDFReaderTimeout");
    const auto unopened = failureOf([&] { reader("kill -ABRT $$\n")->start(); });
    EXPECT_TRUE(unopened.name == "PDFReaderEnded" && unopened.message.isTemporary());

    const auto ends = reader("echo here\necho \"ok $count\"\nread question\necho x >>" +
                             QFile::encodeName(iFolder.filePath("tries")) + "\nkill -SEGV $$\n");
    ASSERT_TRUE(ends->start());
    EXPECT_EQ(ends->pageCount(), 3);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(failureOf([&] { ends->page(0); }).name, "PDFReaderEnded");
    EXPECT_EQ(TestFiles::read(iFolder.filePath("tries")), "x\nx\nx\n");
}

TEST_F(PDFReaderTest, StopsWaitingWhenStopped) {
    iStop = true;
    EXPECT_EQ(failureOfOpening("exec sleep 100\n"), "PDFReadStopped");
}

// A compromised worker may answer anything.
TEST_F(PDFReaderTest, RefusesAnswersThatMakeNoSense) {
    const auto answers = [&](const QByteArray& packed) {
        auto made = reader("echo here\necho \"ok $count\"\nwhile read question; do echo ok " +
                           packed.toBase64() + "; done\n");
        EXPECT_TRUE(made->start());
        return failureOf([&] { made->outline(); }).name;
    };
    const QString garbled = "PDFReaderMalformedAnswer";
    EXPECT_EQ(answers(""), garbled);
    EXPECT_EQ(answers(QByteArray::fromHex("ffffffff")), garbled);
    EXPECT_EQ(answers(QByteArray::fromHex("000000017fffffff")), garbled);
    EXPECT_EQ(answers(PDFSerialization::pack(std::vector{nested(200)})), garbled);
    EXPECT_EQ(answers(PDFSerialization::pack(std::vector{nested(64)})), QString());
}

// Then this process would read the file itself, as when there is no such program.
TEST_F(PDFReaderTest, ReadsNoFileInProcessWhateverTheProgramAnswers) {
    EXPECT_EQ(failureOfOpening("echo here\nexit 127\n"), "PDFReaderEnded");
    EXPECT_EQ(failureOfOpening("echo here\necho fail ProcessStartFailed x\n"),
              "PDFReaderMalformedAnswer");
    EXPECT_EQ(failureOfOpening("echo \"ok $count\"\n"), "PDFReaderMalformedAnswer");
}

TEST_F(PDFReaderTest, IsNotHeldUpByAProgramThatReadsNoQuestions) {
    const auto deaf = reader("echo here\necho \"ok $count\"\nexec sleep 100\n");
    ASSERT_TRUE(deaf->start());
    deaf->setTimeout(100ms);
    const QByteArray key(4 << 20, 'k');
    EXPECT_EQ(failureOf([&] { deaf->information(key.constData()); }).name, "PDFReaderTimeout");
}

TEST(PDFSerialization, RefusesNumbersThatMakeNoSense) {
    const auto failureWith = []<class Value>(const Value& value) {
        return failureOf([&] { PDFSerialization::unpack<Value>(PDFSerialization::pack(value)); })
            .name;
    };
    const auto lines = [](const QRectF& box, int turn, const PDFTextWord& word = {}) {
        return PDFPageContent{{{PDFTextLine{box, turn, false, {word}}}, {}, {}}, {}};
    };
    const QString garbled = "PDFReaderMalformedAnswer";
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    for (const int turn : {0, 90, 180, 270})
        EXPECT_EQ(failureWith(lines({}, turn)), QString());
    EXPECT_EQ(failureWith(lines({}, 45)), garbled);
    for (const QRectF& box : {QRectF(none, 0, 0, 0), QRectF(0, none, 0, 0), QRectF(0, 0, none, 0),
                              QRectF(0, 0, 0, none)}) {
        EXPECT_EQ(failureWith(lines(box, 0)), garbled);
        EXPECT_EQ(failureWith(PDFPage{{}, box, 0, {}, {}}), garbled);
        EXPECT_EQ(failureWith(std::vector{PDFAnnotation{"Link", box, {}, 1}}), garbled);
    }
    EXPECT_EQ(failureWith(PDFPageContent{{}, {{QRectF(0, 0, 0, none)}}}), garbled);
    EXPECT_EQ(failureWith(PDFPageContent{{}, {{QRectF(), PDFMark::Kind(9)}}}), garbled);
    const std::vector<PDFMark> tooMany(PDFLimits::maxPageMarks + 1);
    EXPECT_EQ(failureWith(PDFPageContent{{}, tooMany}), garbled);
    for (const PDFTextWord& word :
         {PDFTextWord{"x", none, 0}, PDFTextWord{"x", 0, none}, PDFTextWord{"x", 0, 0, none},
          PDFTextWord{"x", 0, 0, -1}, PDFTextWord{"x", 0, 0, 9, -1}, PDFTextWord{"x", 0, 0, 9, 8},
          PDFTextWord{"x", 0, 0, 9, 0, -2}, PDFTextWord{"x", 0, 0, 9, 0, 0}})
        EXPECT_EQ(failureWith(lines({}, 0, word)), garbled);
    for (const PDFTag& tag : {PDFTag{PDFTag::Kind(8), 1, 0, 0}, PDFTag{PDFTag::Kind(-1), 1, 0, 0},
                              PDFTag{{}, 1, 7, 0}, PDFTag{{}, 1, 0, -1}, PDFTag{{}, 1, 0, 256}})
        EXPECT_EQ(failureWith(PDFPageContent{{{}, {tag}, {}}, {}}), garbled);
    for (const int rotation : {-1, 360})
        EXPECT_EQ(failureWith(PDFPage{{}, {}, rotation, {}, {}}), garbled);
    EXPECT_EQ(failureWith(PDFPage{{}, {}, 0, {1, none}, {}}), garbled);
    EXPECT_EQ(failureWith(std::vector{PDFAnnotation{"Link", {}, {}, INT_MAX}}), garbled);
    EXPECT_EQ(failureWith(PDFViewing{false, true, {}, INT_MAX}), garbled);
    for (const int page : {-2, INT_MAX})
        EXPECT_EQ(failureWith(std::vector{PDFOutlineNode{"x", page, {}}}), garbled);
}
