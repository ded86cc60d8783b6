#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class WatchTest : public testing::Test {
protected:
    ~WatchTest() override {
        if (iProcess.state() != QProcess::NotRunning) {
            iProcess.kill();
            iProcess.waitForFinished();
        }
    }

    QString path(const QString& name) const { return iRoot.filePath(name); }
    QString inBook(const QString& name) const { return path(QStringLiteral("book/") + name); }

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
        iProcess.start(Program::path(),
                       {QStringLiteral("publish"), QStringLiteral("--quiet"),
                        QStringLiteral("--watch"), QStringLiteral("--type"), type,
                        QStringLiteral("--settings"), path(QStringLiteral("look.txt")),
                        path(QStringLiteral("document.pdf")), path(QStringLiteral("book"))});
        ASSERT_TRUE(iProcess.waitForStarted());
    }

    // The next line that the program writes, or what it has written of one when that takes too
    // long.
    QByteArray nextLine(QProcess::ProcessChannel channel) {
        iProcess.setReadChannel(channel);
        QElapsedTimer clock;
        clock.start();
        while (!iProcess.canReadLine() && clock.elapsed() < 30'000 &&
               iProcess.state() == QProcess::Running)
            iProcess.waitForReadyRead(100);
        return iProcess.readLine().trimmed();
    }
    QByteArray nextLine() { return nextLine(QProcess::StandardOutput); }
    QByteArray nextNote() { return nextLine(QProcess::StandardError); }

    struct Facts {
        ino_t number;
        qint64 changed;
        bool operator==(const Facts&) const = default;
    };
    Facts factsOf(const QString& name) const {
        struct stat info {};
        EXPECT_EQ(::stat(QFile::encodeName(inBook(name)).constData(), &info), 0);
        return {info.st_ino, qint64(info.st_mtim.tv_sec) * 1'000'000'000 + info.st_mtim.tv_nsec};
    }

    QTemporaryDir iRoot;
    QProcess iProcess;
};

} // namespace

TEST_F(WatchTest, MakesTheBookAgainAndWritesOnlyWhatChanged) {
    const QString pdf = path(QStringLiteral("document.pdf"));
    TestFiles::write(pdf, document({"one", "two", "three"}));
    TestFiles::write(path(QStringLiteral("look.txt")), "TutorialTitle=First\n");
    start(QStringLiteral("web"));
    ASSERT_EQ(nextLine(), inBook(QStringLiteral("index.html")).toUtf8());
    ASSERT_TRUE(nextNote().contains("Ctrl-C"));
    const QString kept[] = {QStringLiteral("files/page/1.webp"), QStringLiteral("files/web.js"),
                            QStringLiteral("files/text/1.js"),
                            QStringLiteral("files/thumb/1.webp")};
    std::vector<Facts> before;
    for (const QString& name : kept)
        before.push_back(factsOf(name));
    const QByteArray second = TestFiles::read(inBook(QStringLiteral("files/page/2.webp")));

    // Another file of that name, after a time without one, as some programs save.
    ASSERT_TRUE(QFile::remove(pdf));
    TestFiles::write(pdf + QStringLiteral(".new"), document({"one", "changed"}));
    ASSERT_TRUE(QFile::rename(pdf + QStringLiteral(".new"), pdf));
    const QByteArray line = nextLine();
    EXPECT_TRUE(line.contains(" files written, ") && line.contains(" unchanged, ") &&
                line.contains(" removed"))
        << line.constData();
    for (std::size_t i = 0; i < before.size(); ++i)
        EXPECT_EQ(factsOf(kept[i]), before[i]) << kept[i].toStdString();
    EXPECT_NE(TestFiles::read(inBook(QStringLiteral("files/page/2.webp"))), second);
    for (const char* folder : {"page", "thumb", "large", "text"}) {
        const QStringList gone = QDir(inBook(QStringLiteral("files/") + QLatin1String(folder)))
                                     .entryList({QStringLiteral("3.*")}, QDir::Files);
        EXPECT_TRUE(gone.isEmpty()) << folder;
    }

    const QByteArray configuration =
        TestFiles::read(inBook(QStringLiteral("files/UserConfig.bin")));
    TestFiles::write(path(QStringLiteral("look.txt")), "TutorialTitle=Second title\n");
    EXPECT_TRUE(nextLine().contains(" unchanged"));
    EXPECT_NE(TestFiles::read(inBook(QStringLiteral("files/UserConfig.bin"))), configuration);
    EXPECT_EQ(factsOf(kept[0]), before[0]);

    ::kill(pid_t(iProcess.processId()), SIGINT);
    EXPECT_EQ(Program::finish(iProcess).exitCode, 0);
}

TEST_F(WatchTest, KeepsTheBookWhenTheDocumentIsDamagedAndGoesOn) {
    const QString pdf = path(QStringLiteral("document.pdf"));
    const QString missing = path(QStringLiteral("look.txt"));
    TestFiles::write(missing, "");
    TestFiles::write(pdf, "no document");
    start(QStringLiteral("html"));
    EXPECT_EQ(Program::finish(iProcess).exitCode, 1) << "the first time is as without a watch";

    TestFiles::write(pdf, document({"one", "two"}));
    start(QStringLiteral("html"));
    ASSERT_FALSE(nextLine().isEmpty());
    const auto before = factsOf(QStringLiteral("files/page/1.jpg"));
    ASSERT_TRUE(nextNote().contains("Ctrl-C"));
    TestFiles::write(pdf, "%PDF-1.7\nsaved half-way");
    EXPECT_TRUE(nextNote().startsWith("folvero: " + pdf.toUtf8()));
    EXPECT_TRUE(nextNote().contains("stays as it was"));
    EXPECT_EQ(factsOf(QStringLiteral("files/page/1.jpg")), before);
    TestFiles::write(pdf, document({"one", "two", "three"}));
    EXPECT_TRUE(nextLine().contains(" unchanged"));
    EXPECT_EQ(factsOf(QStringLiteral("files/page/1.jpg")), before);
    EXPECT_TRUE(QFileInfo::exists(inBook(QStringLiteral("files/page/3.jpg"))));
    ::kill(pid_t(iProcess.processId()), SIGTERM);
    EXPECT_EQ(Program::finish(iProcess).exitCode, 0);
}
