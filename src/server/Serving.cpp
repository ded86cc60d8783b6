#include "server/Serving.h"

#include "base/Message.h"
#include "console/CommandError.h"
#include "console/Interrupt.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "output/BookLayout.h"
#include "output/ExistingBook.h"
#include "server/BookServer.h"
#include "server/SearchService.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <cerrno>
#include <cstdlib>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr int firstPort = 8000;
constexpr int lastPort = 8020;

// An HTML page, preferably "index.html", of a folder in which no page is recognised as a book's,
// but not a page of plain text; null for none.
QString anyPageOf(const QString& folder) {
    QStringList pages = QDir(folder).entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
    pages.removeIf(
        [&](const QString& name) { return ExistingBook::isTextPage(Files::join(folder, name)); });
    return pages.contains(BookLayout::defaultPage) ? BookLayout::defaultPage : pages.value(0);
}

void checkFolder(const QString& folder) {
    if (folder.isEmpty())
        throw CommandError(QStringLiteral("the name of the folder is empty"), ExitCode::usage);
    if (!QFileInfo::exists(folder))
        throw CommandError(QStringLiteral("%1: no such folder").arg(folder));
    if (!QFileInfo(folder).isDir())
        throw CommandError(QStringLiteral("%1: is a file, not a folder").arg(folder));
    if (::access(QFile::encodeName(folder).constData(), R_OK | X_OK) != 0) {
        throw CommandError(QStringLiteral("%1: the folder can't be read (%2)")
                               .arg(folder, Message::ofLastSystemError().english()));
    }
}

// The file name in the book's address: empty for "index.html".
QString pageOf(const QString& folder) {
    checkFolder(folder);
    const QStringList books = ExistingBook::pages(folder);
    const QString page = books.isEmpty() ? anyPageOf(folder) : books.front();
    if (page.isNull())
        throw CommandError(QStringLiteral("%1: no book in it (there is no HTML page)").arg(folder));
    return page == BookLayout::defaultPage ? QString()
                                           : QString::fromLatin1(QUrl::toPercentEncoding(page));
}

void bindPort(BookServer& server, std::optional<int> wanted) {
    int port = wanted.value_or(firstPort);
    int error = server.bindPort(port);
    while (!wanted && error == EADDRINUSE && port < lastPort)
        error = server.bindPort(++port);
    if (error == 0)
        return;
    const QString ports = wanted ? QStringLiteral("port %1").arg(port)
                                 : QStringLiteral("ports %1 to %2").arg(firstPort).arg(port);
    throw CommandError(
        QStringLiteral("%1: %2").arg(ports, Message::ofSystemError(error).english()));
}

void serve(BookServer& server, std::optional<int> port, const QString& page) {
    Interrupt::watch();
    bindPort(server, port);
    server.start();
    Terminal::print(QStringLiteral("http://127.0.0.1:%1/%2").arg(server.port()).arg(page));
    Terminal::checkOutput();
    Terminal::report(QStringLiteral("Ctrl-C ends it"));
    while (!Interrupt::wasRequested()) {
        if (server.waitForEnd(100ms))
            throw CommandError(QStringLiteral("the web server broke off"));
    }
    server.stop();
    // Does not wait for a browser that holds a connection open or reads slowly. Nothing is written,
    // so nothing is left half done.
    if (!server.waitForEnd(300ms))
        std::_Exit(int(ExitCode::ok));
}

} // namespace

void serveBook(const QString& folder, std::optional<int> port) {
    const QString page = pageOf(folder);
    BookServer server(QFileInfo(folder).absoluteFilePath());
    serve(server, port, page);
}

void serveLibrary(const QString& folder, std::optional<int> port) {
    checkFolder(folder);
    const LibraryLayout library(folder);
    if (!QFileInfo(library.at(LibraryLayout::state)).isDir())
        throw CommandError(QStringLiteral("%1: no library in it (there is no %2)")
                               .arg(folder, LibraryLayout::state));
    SearchService search(library);
    const auto answers = [&search](const ServerRequest& request) { return search.answer(request); };
    BookServer server(library.folder(), answers, SearchService::path);
    // Without a catalogue, the books are found by their texts only.
    const bool hasCatalogue = QFileInfo::exists(library.at(BookLayout::defaultPage));
    serve(server, port, hasCatalogue ? QString() : SearchService::page);
}
