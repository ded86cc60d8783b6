#include "cli/BookTest.h"
#include "support/ChildProcesses.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <csignal>
#include <functional>
#include <thread>

namespace {

class LibraryTest : public BookTest {
protected:
    QString out() const { return path("out"); }

    void list(const QByteArray& lines) const {
        QFile file(path("list.csv"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("pdf,id,title,pages\n" + lines);
    }
    // A line of the list for one of the samples.
    static QByteArray line(const QString& sample, const QByteArray& rest) {
        return Program::sample(sample).toUtf8() + ',' + rest + '\n';
    }

    Program::Result make(const QStringList& options = {}) const {
        return Program::run(QStringList{"library", "make", "--quiet", path("list.csv"), out()} +
                            options);
    }
    // What a run prints of its books, after the name of the folder.
    static std::string books(const Program::Result& run) {
        return QString::fromUtf8(run.output).section("\n", 0, 0).section(": ", 1).toStdString();
    }
    Program::Result status() const { return Program::run({"library", "status", out()}); }

    QJsonObject result(const QString& id) const {
        QDirIterator files(out() + "/.folvero-library/results", {id + ".json"}, QDir::Files,
                           QDirIterator::Subdirectories);
        if (!files.hasNext())
            return {};
        QFile file(files.next());
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }
    QString runOf(const QString& id) const { return result(id)["run"].toString(); }
    bool hasBook(const QString& id) const {
        return QFileInfo::exists(out() + "/books/" + id + "/files/UserConfig.bin");
    }

    static void waitUntil(const std::function<bool()>& condition) {
        for (int i = 0; i < 6000 && !condition(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        EXPECT_TRUE(condition());
    }
};

} // namespace

TEST_F(LibraryTest, MakesWhatItCanAndSaysWhatItCannot) {
    list(line("outline.pdf", "good,<b>Good</b>,1-2") + line("damaged-page.pdf", "hole,,") +
         line("not-a-pdf.pdf", "none,,") + line("missing.pdf", "gone,,") +
         line("outline.pdf", "twice,,") + line("links.pdf", "Twice,,") +
         line("outline.pdf", "badpages,,7-x") + line("outline.pdf", "../up,,"));
    const auto first = make();
    EXPECT_EQ(first.exitCode, 1);
    EXPECT_EQ(books(first), "6 books: 1 made, 1 incomplete, 4 failed");
    EXPECT_TRUE(hasBook("good"));
    EXPECT_TRUE(hasBook("hole"));
    EXPECT_FALSE(hasBook("twice"));
    const auto shown = status();
    EXPECT_EQ(shown.exitCode, 1);
    const QString text = QString::fromUtf8(shown.output).replace(Program::sample({}), "S/");
    EXPECT_EQ(
        text.section("\n", 0, 5).toStdString(),
        "incomplete: hole (S/damaged-page.pdf): page 3 could not be drawn (malformed page "
        "tree)\n"
        "failed: none (S/not-a-pdf.pdf): S/not-a-pdf.pdf: is not a PDF document\n"
        "failed: gone (S/missing.pdf): S/missing.pdf: no such file\n"
        "failed: twice (S/outline.pdf): the ID stands on more than one line of the list\n"
        "failed: badpages (S/outline.pdf): the page range \"7-x\" names no page of the document, "
        "which has pages 1 to 9\n"
        "bad line: line 9: \"../up\" can't be an ID: use letters from a to z, digits, dots, "
        "hyphens and underscores, the first a letter or digit");

    // Nothing has changed, so nothing is tried.
    const QStringList before{runOf("good"), runOf("hole"), runOf("none")};
    EXPECT_EQ(books(make()), "6 books: 0 made, 1 up to date, 1 incomplete, 4 failed");
    EXPECT_EQ((QStringList{runOf("good"), runOf("hole"), runOf("none")}), before);
    EXPECT_EQ(make({"--only-failed"}).exitCode, 1);
    EXPECT_EQ(runOf("good"), before[0]);
    EXPECT_NE(runOf("hole"), before[1]);
    EXPECT_NE(runOf("none"), before[2]);
}

TEST_F(LibraryTest, MakesAgainWhatHasChanged) {
    list(line("outline.pdf", "one,,1") + line("links.pdf", "two,,") + line("text.pdf", "three,,1"));
    EXPECT_EQ(make().exitCode, 0);
    EXPECT_EQ(status().exitCode, 0);
    const QString one = runOf("one");
    const QString two = runOf("two");
    list(line("outline.pdf", "one,New,1") + line("links.pdf", "two,,"));
    const auto again = make();
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_EQ(books(again), "2 books: 1 made, 1 up to date");
    EXPECT_NE(runOf("one"), one);
    EXPECT_EQ(runOf("two"), two);
    // The book that is not in the list any more.
    EXPECT_TRUE(again.errors.startsWith("three: is not in the list any more"))
        << again.errors.data();
    EXPECT_TRUE(hasBook("three"));
    EXPECT_EQ(make({"--prune"}).exitCode, 0);
    EXPECT_FALSE(QFileInfo::exists(out() + "/books/three"));
    EXPECT_TRUE(result("three").isEmpty());
    // A book whose files are gone is made, and one whose result is.
    QFile::remove(out() + "/books/one/files/thumb/1.jpg");
    QDir(out() + "/.folvero-library/results").removeRecursively();
    EXPECT_EQ(books(make()), "2 books: 2 made");
    EXPECT_GT(result("two")["made"].toObject()["pages"].toInt(), 0);
    EXPECT_TRUE(QFileInfo::exists(out() + "/books/one/files/thumb/1.jpg"));
}

// Publish takes most options once, and a style is one of its template.
TEST_F(LibraryTest, LinesGoBeforeOptionsOfAllBooks) {
    QFile file(path("list.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("pdf,id,template,set\n" + line("outline.pdf", "own,desk,AutoPlay=Yes") +
               line("encrypted.pdf", "usual,,"));
    file.close();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("FOLVERO_PASSWORD", "secret");
    const QStringList command{"library", "make",    path("list.csv"), out(),   "--template",
                              "deck",    "--style", "Boardroom",      "--set", "RightToLeft=Yes"};
    for (const char* result : {"2 made", "0 made, 2 up to date"}) {
        const auto made = Program::runOther(Program::path(), command, environment);
        EXPECT_EQ(made.exitCode, 0) << made.errors.data();
        EXPECT_TRUE(made.output.contains(result)) << made.output.data();
    }
    const QByteArray properties =
        Program::run({"decode", out() + "/books/own/files/UserConfig.bin"}).output;
    EXPECT_TRUE(properties.contains("<AutoPlay>YES<")) << properties.data();
    EXPECT_TRUE(properties.contains("<RightToLeft>YES<"));
}

TEST_F(LibraryTest, EndsWithTheCatalogue) {
    list(line("outline.pdf", "one,,1"));
    // Nothing is begun with an option that no book could be made with.
    EXPECT_EQ(make({"--set", "NoSuch=1"}).exitCode, 2);
    EXPECT_FALSE(QFileInfo::exists(out()));

    const QString page = out() + "/index.html";
    QDir().mkpath(out());
    TestFiles::write(page, "mine");
    const auto refused = make({"--url", "https://a.example/l", "--title", "Archive"});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.startsWith("folvero: " + page.toUtf8() + ": is there already"))
        << refused.errors.data();
    EXPECT_TRUE(hasBook("one"));
    EXPECT_EQ(TestFiles::read(page), "mine");
    // A shard has a part of the books only.
    QFile::remove(page);
    EXPECT_EQ(make({"--shard", "1/1", "--no-catalogue"}).exitCode, 0);
    EXPECT_EQ(make({"--shard", "1/2"}).exitCode, 0);
    EXPECT_FALSE(QFileInfo::exists(page));

    // The address of the first run still holds, for books as well.
    EXPECT_EQ(books(make()), "1 books: 0 made, 1 up to date");
    EXPECT_TRUE(TestFiles::read(page).contains("<title>Archive</title>"));
    EXPECT_TRUE(TestFiles::read(out() + "/books/one/manifest.json")
                    .contains("https://a.example/l/books/one/manifest.json"));
    EXPECT_TRUE(TestFiles::read(out() + "/catalogue/iiif/collection.json")
                    .contains("https://a.example/l/books/one/manifest.json"));
}

// A line that can't be read may be that of the book.
TEST_F(LibraryTest, DoesNotPruneByAListThatItCannotRead) {
    list(line("outline.pdf", "one,,1") + line("links.pdf", "two,,"));
    EXPECT_EQ(make().exitCode, 0);
    list(line("outline.pdf", "one,,1") + line("links.pdf", "t/wo,,"));
    EXPECT_EQ(make({"--prune"}).exitCode, 1);
    EXPECT_TRUE(hasBook("two"));
}

TEST_F(LibraryTest, ShardsMakeTheWholeTogether) {
    QByteArray lines;
    for (char letter = 'a'; letter < 'i'; ++letter)
        lines += line("outline.pdf", QByteArray(qsizetype{1}, letter) + ",,1");
    list(lines + line("outline.pdf", "/,,"));
    EXPECT_EQ(make({"--shard", "1/3"}).exitCode, 1); // the line without an ID
    // Of a run before, on a machine whose clock is ahead.
    TestFiles::write(out() + "/.folvero-library/runs/1-of-1.json",
                     R"({"id": "x", "shard": 1, "shards": 1, "started": "2099-01-01T00:00:00Z"})");
    EXPECT_EQ(make({"--shard", "3/3"}).exitCode, 0);
    const auto unfinished = status();
    EXPECT_EQ(unfinished.exitCode, 75);
    EXPECT_TRUE(unfinished.output.contains("shard 2 of 3 has not begun"))
        << unfinished.output.data();
    EXPECT_TRUE(unfinished.output.contains("not made yet: "));
    EXPECT_EQ(make({"--shard", "2/3"}).exitCode, 0);
    const auto whole = status();
    EXPECT_EQ(whole.exitCode, 1);
    EXPECT_TRUE(whole.output.endsWith("8 books: 8 made, 0 up to date, 1 bad lines\n"))
        << whole.output.data();
    // Shards that had different lists.
    list(lines);
    EXPECT_EQ(make({"--shard", "1/3"}).exitCode, 0);
    EXPECT_EQ(status().exitCode, 75);
    for (const char* option : {"0/3", "4/3", "1", "a/b"})
        EXPECT_EQ(make({"--shard", option}).exitCode, 2) << option;
}

TEST_F(LibraryTest, LosesNothingWhenItIsStopped) {
    list(line("outline.pdf", "first,,1") + line("thousand.pdf", "long,,"));
    for (const int signal : {SIGINT, SIGKILL}) {
        SCOPED_TRACE(signal);
        QProcess process;
        process.start(Program::path(), {"library", "make", "--jobs=1", path("list.csv"), out()});
        ASSERT_TRUE(process.waitForStarted());
        // Below it is the publish, and below that its worker.
        std::vector<pid_t> started;
        waitUntil([&] {
            started = ChildProcesses::of(process.processId());
            return hasBook("first") && !started.empty() &&
                   !ChildProcesses::running("draw", started.front()).empty();
        });
        const pid_t worker = ChildProcesses::running("draw", started.front()).front();
        ::kill(pid_t(process.processId()), signal);
        EXPECT_EQ(Program::finish(process).exitCode, signal == SIGINT ? 130 : -1);
        waitUntil([&] {
            return ChildProcesses::command(started.front()).value(0).isEmpty() &&
                   ChildProcesses::command(worker).value(0).isEmpty();
        });
        EXPECT_FALSE(hasBook("long"));
        const auto left = status();
        EXPECT_EQ(left.exitCode, 75);
        EXPECT_TRUE(signal == SIGINT ||
                    left.output.contains("shard 1 of 1 has not ended; it began on " +
                                         QSysInfo::machineHostName().toUtf8()))
            << left.output.data();
    }
    list(line("outline.pdf", "first,,1") + line("thousand.pdf", "long,,1-3"));
    EXPECT_EQ(books(make()), "2 books: 1 made, 1 up to date");
    EXPECT_EQ(status().exitCode, 0);
    EXPECT_TRUE(QDir(out() + "/.folvero-library/leases").isEmpty());
    EXPECT_TRUE(QDir(out() + "/books/long")
                    .entryList({".folvero-*"}, QDir::AllEntries | QDir::Hidden)
                    .isEmpty());
}

// Sanitizers catch other signals of crashes themselves.
TEST_F(LibraryTest, SaysWhatEndedTheProcessOfABook) {
    list(line("thousand.pdf", "long,,"));
    for (const auto& [signal, state] :
         {std::pair{SIGKILL, "to be tried again"}, {SIGABRT, "failed"}}) {
        QProcess process;
        process.start(Program::path(), {"library", "make", path("list.csv"), out()});
        ASSERT_TRUE(process.waitForStarted());
        std::vector<pid_t> started;
        waitUntil([&] {
            started = ChildProcesses::of(process.processId());
            return !started.empty() && !ChildProcesses::running("draw", started.front()).empty();
        });
        ::kill(started.front(), signal);
        Program::finish(process);
        const QByteArray shown = status().output;
        EXPECT_TRUE(shown.contains("the process that made it was ended by signal " +
                                   QByteArray::number(signal)))
            << shown.constData();
        EXPECT_TRUE(shown.contains(state)) << shown.constData();
    }
}

// As a share that is gone leaves its empty mount point behind.
TEST_F(LibraryTest, EndsWhenItsFolderIsGone) {
    list(line("thousand.pdf", "long,,1-60") + line("outline.pdf", "next,,1"));
    QProcess process;
    process.start(Program::path(), {"library", "make", "--jobs=1", path("list.csv"), out()});
    ASSERT_TRUE(process.waitForStarted());
    waitUntil([&] { return !ChildProcesses::of(process.processId()).empty(); });
    ASSERT_TRUE(QDir().rename(out(), path("elsewhere")));
    ASSERT_TRUE(QDir().mkdir(out()));
    EXPECT_EQ(Program::finish(process).exitCode, 75);
    EXPECT_FALSE(hasBook("next"));
}
