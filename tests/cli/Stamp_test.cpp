#include "cli/BookTest.h"

#include <QJsonDocument>
#include <QRegularExpression>

namespace {

// How the run of a command ends, by its report.
class StampTest : public BookTest {
protected:
    QString resultOf(const QStringList& options) {
        published(path("book.pdf"), options + QStringList("--report=" + path("report.json")));
        const auto document = QJsonDocument::fromJson(TestFiles::read(path("report.json")));
        iDrawing = document["timing"]["draw"].toDouble();
        iWritten = document["files"]["written"].toInt();
        return document["result"].toString();
    }

    void SetUp() override {
        TestFiles::write(path("book.pdf"), TestFiles::read(Program::sample("outline.pdf")));
        TestFiles::write(path("settings.txt"), "AutoPlay=YES");
        TestFiles::write(path("other.txt"), "AutoPlay=NO");
    }

    double iDrawing = 0; // seconds
    int iWritten = 0;    // files
};

} // namespace

TEST_F(StampTest, EveryOptionThatChangesTheBookMakesItAnew) {
    const QString settings = "--settings=" + path("settings.txt");
    QStringList changes{"--type=app",
                        "--name=other",
                        "--title=Other",
                        "--pages=1-2",
                        "--single-file",
                        "--preview-pages=1",
                        "--spreads=split",
                        "--url=https://example.org/book/",
                        "--quality=50",
                        "--links",
                        "--bookmarks",
                        "--template=deck",
                        "--style=Garden",
                        settings,
                        "--set=topMargin=7",
                        "--allow-text",
                        "--author=A",
                        "--subject=B",
                        "--language=de",
                        "--date=1911",
                        "--rights=mine",
                        "--iiif",
                        "--shared-player=" + path("player")};
    const QStringList runOptions{"--watch", "--jobs",     "--quiet",         "--timing", "--report",
                                 "--force", "--password", "--password-file", "--help"};
    const QString help = QString::fromUtf8(Program::run({"publish", "--help"}).output);
    for (const auto& match : QRegularExpression("--[a-z-]+(?=[, ])").globalMatch(help)) {
        const bool isKnown =
            runOptions.contains(match.captured()) || !changes.filter(match.captured()).isEmpty();
        EXPECT_TRUE(isKnown || help.count(match.captured()) == 0) << qPrintable(match.captured());
    }
    for (const QString& change : changes) {
        SCOPED_TRACE(qPrintable(change));
        QDir(book()).removeRecursively();
        QStringList usual(change.contains("=app") ? "--type=html" : "--type=web");
        if (change == "--iiif")
            usual << "--url=https://example.org/";
        EXPECT_EQ(resultOf(usual), "made");
        EXPECT_EQ(resultOf(usual + QStringList("--jobs=1")), "upToDate");
        const QStringList changed =
            change.contains("=app") ? QStringList(change) : usual + QStringList(change);
        EXPECT_EQ(resultOf(changed), "made");
        EXPECT_EQ(resultOf(changed), "upToDate");
    }
    TestFiles::write(path("settings.txt"), "AutoPlay=NO");
    EXPECT_EQ(resultOf({"--type=web", settings}), "made");
}

TEST_F(StampTest, HalvesOfPagesAreDrawnAgainForAnotherDirection) {
    const QStringList rightToLeft("--set=RightToLeft=Yes");
    published("spreads.pdf");
    published("spreads.pdf", rightToLeft);
    const auto made = contents();
    QDir(book()).removeRecursively();
    published("spreads.pdf", rightToLeft);
    EXPECT_TRUE(contents() == made);
}

TEST_F(StampTest, WhatIsMissingOrChangedIsMadeAnew) {
    EXPECT_EQ(resultOf({}), "made");
    EXPECT_EQ(resultOf({"--force"}), "made");
    EXPECT_GT(iDrawing, 0);
    QFile::remove(file("files/page/2.jpg"));
    EXPECT_EQ(resultOf({}), "made");
    TestFiles::write(file("index.html"), TestFiles::read(file("index.html")) + "<!-- mine -->");
    EXPECT_EQ(resultOf({}), "made");
    // Of the same size, and modified just now.
    const QByteArray pdf = TestFiles::read(path("book.pdf"));
    TestFiles::write(path("book.pdf"), QByteArray(pdf).replace("%PDF-1.7", "%PDF-1.6"));
    EXPECT_EQ(resultOf({}), "made");
    EXPECT_GT(iDrawing, 0);
    EXPECT_EQ(resultOf({}), "upToDate");
    const QStringList shared{"--type=web", "--shared-player=" + path("player")};
    EXPECT_EQ(resultOf(shared), "made");
    QDir(path("player")).removeRecursively();
    EXPECT_EQ(resultOf(shared), "made");
    EXPECT_EQ(resultOf(shared), "upToDate");
}

TEST_F(StampTest, PagesAreNotDrawnAgainForAnotherTitle) {
    for (const char* type : {"--type=html", "--type=web"}) {
        published(path("book.pdf"), {type, "--title=Old"});
        EXPECT_EQ(resultOf({type, "--title=New"}), "made");
        EXPECT_EQ(iDrawing > 0, QByteArray(type) == "--type=web"); // web books need the text
        EXPECT_EQ(iWritten > 1, QByteArray(type) == "--type=web");
        const auto kept = contents();
        QDir(book()).removeRecursively();
        published(path("book.pdf"), {type, "--title=New"});
        EXPECT_TRUE(contents() == kept);
    }
}

// The password is read between the two.
TEST_F(StampTest, ADocumentThatChangesBetweenTheStampAndTheImportIsAnError) {
    const auto result = Program::runOther(
        "/bin/sh", {"-c",
                    "cd \"$2\"; mkfifo word; { echo >>book.pdf; echo word; } >word &\n"
                    "exec \"$1\" publish --quiet --password-file=\"$2/word\" \"$2/book.pdf\" book",
                    "sh", Program::path(), iRoot.path()});
    EXPECT_EQ(result.exitCode, 75) << result.errors.constData();
}
