#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "cli/BookTest.h"

#include <QElapsedTimer>
#include <csignal>
#include <sys/stat.h>

namespace {

class WatchTest : public BookTest {
protected:
    ~WatchTest() override {
        iProcess.kill();
        iProcess.waitForFinished();
    }

    static QByteArray document(const std::vector<QByteArray>& pages) {
        PDFBuilder pdf;
        for (const QByteArray& words : pages) {
            PDFBuilder::Page sheet;
            sheet.mediaBox = QRectF(0, 0, 300, 400);
            sheet.fonts = {{"F", "Helvetica"}};
            sheet.content = PDFContent::text("F", 30, {40, 300}, words);
            pdf.addPage(sheet);
        }
        return pdf.build();
    }

    void start(const QString& type) {
        iProcess.start(Program::path(), {"publish", "--quiet", "--watch", "--type", type,
                                         "--settings", iSettings, iPDF, book()});
        ASSERT_TRUE(iProcess.waitForStarted());
    }

    // The next line that the program prints; what there is of it when that takes too long.
    QByteArray nextLine(QProcess::ProcessChannel channel = QProcess::StandardOutput) {
        iProcess.setReadChannel(channel);
        QElapsedTimer clock;
        clock.start();
        while (!iProcess.canReadLine() && clock.elapsed() < 60'000 &&
               iProcess.state() == QProcess::Running)
            iProcess.waitForReadyRead(100);
        return iProcess.readLine().trimmed();
    }
    QByteArray nextNote() { return nextLine(QProcess::StandardError); }

    int end(int signal) {
        ::kill(pid_t(iProcess.processId()), signal);
        return Program::finish(iProcess).exitCode;
    }

    // Which file it is, and when it was written.
    using Identity = std::tuple<ino_t, time_t, long>;
    Identity identity(const QString& name) const {
        struct stat info {};
        EXPECT_EQ(::stat(QFile::encodeName(file(name)).constData(), &info), 0);
        return {info.st_ino, info.st_mtim.tv_sec, info.st_mtim.tv_nsec};
    }

    const QString iPDF = path("document.pdf");
    const QString iSettings = path("look.txt");
    QProcess iProcess;
};

} // namespace

TEST_F(WatchTest, MakesTheBookAgainAndWritesOnlyWhatChanged) {
    TestFiles::write(iPDF, document({"one", "two", "three"}));
    TestFiles::write(iSettings, "TutorialTitle=First\n");
    start("web");
    ASSERT_EQ(nextLine(), file("index.html").toUtf8());
    ASSERT_EQ(nextNote(), "Waiting for changes; Ctrl-C ends it");
    std::map<QString, Identity> kept;
    for (const char* name :
         {"files/page/1.png", "files/thumb/1.jpg", "files/text/1.js", "files/web.js"})
        kept[name] = identity(name);
    const auto before = contents();

    // Another file of that name, after a time without one, as some programs save.
    ASSERT_TRUE(QFile::remove(iPDF));
    EXPECT_FALSE(iProcess.waitForReadyRead(1500)) << iProcess.readAllStandardError().constData();
    TestFiles::write(iPDF + ".new", document({"one", "changed"}));
    ASSERT_TRUE(QFile::rename(iPDF + ".new", iPDF));
    const QByteArray line = nextLine();
    EXPECT_TRUE(line.contains(" files written, ") && line.contains(" unchanged, ") &&
                line.contains(" removed"))
        << line.constData();
    for (const auto& [name, earlier] : kept)
        EXPECT_EQ(identity(name), earlier) << name.toStdString();
    auto now = contents();
    EXPECT_NE(now.at("files/page/2.png"), before.at("files/page/2.png"));
    for (const auto& [name, content] : now)
        EXPECT_FALSE(name.contains("/3.")) << name.toStdString();

    TestFiles::write(iSettings, "TutorialTitle=Second title\n");
    EXPECT_TRUE(nextLine().contains(" unchanged"));
    EXPECT_NE(contents().at("files/UserConfig.bin"), now.at("files/UserConfig.bin"));
    EXPECT_EQ(identity("files/page/1.png"), kept["files/page/1.png"]);
    TestFiles::write(iSettings, "TutorialTitle=Second title\n");
    EXPECT_TRUE(nextLine().endsWith(file("index.html").toUtf8() + ": up to date"));
    EXPECT_EQ(end(SIGINT), 0);
}

TEST_F(WatchTest, KeepsTheBookWhenTheDocumentIsDamagedAndGoesOn) {
    TestFiles::write(iSettings, "");
    TestFiles::write(iPDF, "no document");
    start("html");
    EXPECT_EQ(Program::finish(iProcess).exitCode, 65) << "the first time is as without a watch";

    TestFiles::write(iPDF, document({"one", "two"}));
    start("html");
    ASSERT_FALSE(nextLine().isEmpty());
    const auto before = identity("files/page/1.jpg");
    ASSERT_EQ(nextNote(), "Waiting for changes; Ctrl-C ends it");
    TestFiles::write(iPDF, "%PDF-1.7\nsaved half-way");
    EXPECT_TRUE(nextNote().startsWith("folvero: " + iPDF.toUtf8()));
    EXPECT_EQ(nextNote(), "The book stays as it was until the next change");
    EXPECT_EQ(identity("files/page/1.jpg"), before);
    TestFiles::write(iPDF, document({"one", "two", "three"}));
    EXPECT_TRUE(nextLine().contains(" unchanged"));
    EXPECT_EQ(identity("files/page/1.jpg"), before);
    EXPECT_TRUE(exists("files/page/3.jpg"));
    EXPECT_EQ(end(SIGTERM), 0);
}
