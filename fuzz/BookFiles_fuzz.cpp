#include "Fuzz.h"
#include "output/BookLayout.h"
#include "output/BookStamp.h"
#include "output/CommitSwitch.h"
#include "output/ExistingBook.h"
#include "output/UserConfig.h"
#include "output/WebScript.h"
#include "support/TemplateLibrary.h"
#include "util/NSData+CommonCrypto.h"

#include <QDir>
#include <QJsonDocument>
#include <fcntl.h>

namespace {

// A folder with a published book, whose files may be anything.
class Book {
public:
    Book() {
        write("index.html", "");
        write(BookLayout::metadata, WebScript::start(BookLayout::metadata));
        for (const char* entry : {"staging/swap/a", "staging/away/b", "a", "b"})
            write(entry, entry);
    }
    QString at(const QString& path) const { return iFolder.filePath(path); }
    void write(const QString& path, const QByteArray& content) const {
        TestFiles::write(at(path), content);
    }

private:
    QTemporaryDir iFolder;
};

void checkStamp(const Book& book, const QByteArray& content) {
    const QString page = book.at("index.html");
    const QString path = book.at(".index.html.stamp");
    BookStamp().write(page);
    const auto files = QJsonDocument::fromJson(TestFiles::read(path))["files"].toString();
    TestFiles::write(path, QByteArray(content).replace('#', files.toLatin1()));
    const BookStamp stamp = BookStamp::of(page);
    stamp.write(page);
    const BookStamp again = BookStamp::of(page);
    Fuzz::require(again.book == stamp.book && again.pages == stamp.pages &&
                      again.document.digest == stamp.document.digest &&
                      again.document.size == stamp.document.size &&
                      again.document.modified == stamp.document.modified,
                  "a stamp is read as it was written");
}

// These files are removed when the book is published again.
void checkConfiguration(const Book& book, const QByteArray& content) {
    book.write(BookLayout::configuration,
               CommonCryptor::RC4EncryptedDataUsingKey(content, userConfigKey));
    for (const QString& path : ExistingBook::files(QFileInfo(book.at("a")).path()))
        Fuzz::require(path.startsWith("files/") && QDir::cleanPath(path) == path,
                      "a book's files lie in its folder");
}

void checkPage(const Book& book, const QByteArray& content) {
    book.write("p.html", "<meta name=\"generator\" content=\"Folvero\">" + content);
    Fuzz::require(ExistingBook::isPage(book.at("p.html")), "a page is found by its mark");
    Fuzz::require(ExistingBook::title(book.at("p.html")).size() <= content.size(),
                  "a title is in it");
}

void checkServiceWorker(const Book& book, const QByteArray& content) {
    book.write(BookLayout::serviceWorker, ExistingBook::serviceWorkerStart + content);
    const QString page = ExistingBook::pageOfServiceWorker(QFileInfo(book.at("a")).path());
    Fuzz::require(!page.isNull() && page.size() <= content.size(), "a service worker is ours");
}

// Of a killed process, or made up.
void checkJournal(const Book& book, const QByteArray& content) {
    book.write("staging/journal", content);
    const FileDescriptor folder(::open(QFile::encodeName(book.at(".")).constData(), O_RDONLY));
    const FileDescriptor staging(
        ::open(QFile::encodeName(book.at("staging")).constData(), O_RDONLY));
    CommitSwitch steps(folder.number(), staging.number());
    if (!steps.readJournal(book.at("staging")))
        return;
    Message error;
    Fuzz::require(steps.writeJournal(book.at("staging"), &error), "a journal is written");
    CommitSwitch again(folder.number(), staging.number());
    Fuzz::require(again.readJournal(book.at("staging")), "a journal is read again");
    const auto isSame = [](const auto& one, const auto& other) {
        return one.name == other.name && one.added == other.added && one.replaced == other.replaced;
    };
    Fuzz::require(std::equal(steps.steps().begin(), steps.steps().end(), again.steps().begin(),
                             again.steps().end(), isSame),
                  "a journal has the same steps again");
    steps.undo();
    for (const char* entry : {"staging/swap/a", "staging/away/b", "a", "b"})
        Fuzz::require(TestFiles::read(book.at(entry)) == entry,
                      "nobody else's entries are touched");
}

} // namespace

// One byte for which file of a book it is, then its content.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Book book;
    constexpr void (*checks[])(const Book&, const QByteArray&) = {
        checkStamp, checkConfiguration, checkPage, checkServiceWorker, checkJournal};
    Fuzz::Input input(data, size);
    checks[(input.byte() - unsigned{'0'}) % std::size(checks)](book, input.rest());
    return 0;
}
