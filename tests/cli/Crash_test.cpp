#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "cli/BookTest.h"
#include "system/FileDescriptor.h"
#include "system/LockedFolder.h"

#include <QElapsedTimer>
#include <fcntl.h>
#include <random>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Contents = std::map<QString, QByteArray>;

// Two documents whose books have no file in common but the player.
class CrashTest : public BookTest {
protected:
    CrashTest() {
        for (const char* name : {"old", "new"}) {
            PDFBuilder pdf;
            for (int page = 1; page <= (name[0] == 'n' ? 9 : 12); ++page) {
                PDFBuilder::Page sheet;
                sheet.mediaBox = QRectF(0, 0, 600 + (name[0] == 'n'), 800);
                sheet.fonts = {{"F", "Helvetica"}};
                sheet.content = PDFContent::text("F", 40, {60, 600},
                                                 name + QByteArray(" ") + QByteArray::number(page));
                pdf.addPage(sheet);
            }
            EXPECT_TRUE(pdf.write(document(name)));
        }
    }

    QString document(const char* name) const { return path(name + QString(".pdf")); }
    Contents bookOf(const char* name) const {
        published(document(name), {"--title", name});
        return contents();
    }

    bool isWriting() const {
        return !QDir(book()).entryList({staging}, QDir::Dirs | QDir::Hidden).isEmpty();
    }

    // Publishes and kills the program: somewhere on its way, or in the short time in which it
    // changes the book's folder.
    void publishAndKill(const char* name, bool whileWriting) {
        QProcess process;
        process.start(Program::path(),
                      {"publish", "--type=html", "--title", name, document(name), book()});
        ASSERT_TRUE(process.waitForStarted());
        auto delay = whole * std::uniform_real_distribution<>(0, 1.1)(random);
        if (whileWriting) {
            while (!isWriting() && !process.waitForFinished(0))
                std::this_thread::yield();
            delay = 1us * std::uniform_int_distribution<>(0, 6000)(random);
        }
        std::this_thread::sleep_for(delay);
        process.kill();
        process.waitForFinished();
    }

    // Without staging folders, once the guard of a killed program is done.
    Contents edition() const {
        const FileDescriptor folder(::open(QFile::encodeName(book()).constData(), O_RDONLY));
        for (const QString& name : QDir(book()).entryList({staging}, QDir::Dirs | QDir::Hidden)) {
            while (LockedFolder::isLocked(folder.number(), QFile::encodeName(name)))
                std::this_thread::yield();
        }
        Contents found = contents();
        std::erase_if(found, [](const auto& each) { return each.first.startsWith(".folvero-"); });
        return found;
    }

    const QString staging = ".folvero-publish-*";
    std::chrono::duration<double> whole; // that publishing takes
    const unsigned seed = std::random_device()();
    std::mt19937 random{seed};
};

} // namespace

TEST_F(CrashTest, LeavesOneOfTheEditionsWhereverPublishingIsKilled) {
    SCOPED_TRACE(seed);
    const char* names[] = {"new", "old"};
    Contents after = bookOf("new");
    ASSERT_TRUE(QDir(book()).removeRecursively());
    const auto start = std::chrono::steady_clock::now();
    Contents before = bookOf("old");
    whole = std::chrono::steady_clock::now() - start;
    int killedWhileWriting = 0;
    for (int kill = 1; (kill < 50 || killedWhileWriting < 10) && !HasFailure(); ++kill) {
        publishAndKill(names[0], kill % 2 == 0);
        killedWhileWriting += isWriting() ? 1 : 0;
        SCOPED_TRACE(kill);
        const Contents now = edition();
        EXPECT_TRUE(now == before || now == after) << "a mixture";
        if (kill % 5 == 0) {
            EXPECT_TRUE(bookOf(names[0]) == after) << "the next publish differs";
            std::swap(before, after);
            std::swap(names[0], names[1]);
        }
    }
}
