#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "support/BookReader.h"
#include "support/Program.h"
#include "support/TemplateLibrary.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Contents = std::map<QString, QByteArray>;

// Two documents of the same number of pages, whose books have no file in common but the player.
class CrashTest : public testing::Test {
protected:
    CrashTest() {
        for (const char* name : {"old", "new"}) {
            PDFBuilder pdf;
            for (int page = 1; page <= pages; ++page) {
                PDFBuilder::Page sheet;
                sheet.mediaBox = QRectF(0, 0, 600 + (name[0] == 'n'), 800);
                sheet.fonts = {{"F", "Helvetica"}};
                sheet.content = PDFContent::text("F", 40, {60, 600},
                                                 name + QByteArray(" ") + QByteArray::number(page));
                pdf.addPage(sheet);
            }
            EXPECT_TRUE(pdf.write(path(name) + QStringLiteral(".pdf")));
        }
    }

    QString path(const char* name) const { return iRoot.filePath(QString::fromLatin1(name)); }
    QString book() const { return path("book"); }

    QStringList arguments(const char* document, const QString& folder) const {
        return {QStringLiteral("publish"),
                QStringLiteral("--quiet"),
                QStringLiteral("--title"),
                QString::fromLatin1(document),
                path(document) + QStringLiteral(".pdf"),
                folder};
    }
    Contents published(const char* document, const QString& folder) const {
        const auto result = Program::run(arguments(document, folder));
        EXPECT_EQ(result.exitCode, 0) << result.errors.constData();
        return BookReader::contentsBeneath(folder);
    }

    bool isWriting() const {
        const QStringList hidden{QStringLiteral(".folvero-publish-*")};
        return !QDir(book()).entryList(hidden, QDir::Dirs | QDir::Hidden).isEmpty();
    }

    // Every file must be there, as one of the two books has it.
    void expectWholeFiles(const Contents& before, const Contents& after) const {
        const Contents now = BookReader::contentsBeneath(book());
        for (const auto& [name, content] : before) {
            const auto found = now.find(name);
            ASSERT_TRUE(found != now.end()) << name.toStdString() << " is missing";
            EXPECT_TRUE(found->second == content || found->second == after.at(name))
                << name.toStdString() << " is neither the old nor the new one";
        }
        for (const auto& [name, content] : now)
            EXPECT_TRUE(name.startsWith(u".folvero-publish-") || before.count(name) > 0)
                << name.toStdString();
    }

    static constexpr int pages = 12;
    QTemporaryDir iRoot;
};

} // namespace

TEST_F(CrashTest, LeavesEveryFileWholeWhereverPublishingIsKilled) {
    constexpr int kills = 50;
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    Contents before = published("old", path("fresh-old"));
    Contents after = published("new", path("fresh-new"));
    ASSERT_EQ(before.size(), after.size());
    QElapsedTimer clock;
    clock.start();
    ASSERT_EQ(published("old", book()), before);
    const auto whole = std::chrono::milliseconds(clock.elapsed());
    const char* names[] = {"new", "old"};
    int killedWhileWriting = 0;
    for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
        QProcess process;
        process.start(Program::path(), arguments(names[0], book()));
        ASSERT_TRUE(process.waitForStarted());
        // Every other one in the short time in which the book's folder changes.
        if (kill % 2 == 0) {
            std::this_thread::sleep_for(whole * std::uniform_real_distribution<>(0, 1.1)(random));
        } else {
            clock.restart();
            while (!isWriting() && clock.elapsed() < 10'000 &&
                   process.state() == QProcess::Running && !process.waitForFinished(0))
                std::this_thread::yield();
            std::this_thread::sleep_for(1us * std::uniform_int_distribution<>(0, 6000)(random));
        }
        process.kill();
        process.waitForFinished();
        killedWhileWriting += isWriting() ? 1 : 0;
        SCOPED_TRACE(testing::Message() << "kill " << kill);
        expectWholeFiles(before, after);
        if (kill % 5 == 4) {
            EXPECT_TRUE(published(names[0], book()) == after) << "the next publish differs";
            EXPECT_FALSE(isWriting());
            std::swap(before, after);
            std::swap(names[0], names[1]);
        }
    }
    EXPECT_GT(killedWhileWriting, 5);
}
