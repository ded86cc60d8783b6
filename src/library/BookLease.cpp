#include "library/BookLease.h"

#include "library/ProcessIdentity.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QUuid>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray newContent() {
    QJsonObject content = ProcessIdentity::own().asJson();
    // Two leases of one process differ.
    content[QStringLiteral("token")] = QUuid::createUuid().toString(QUuid::Id128);
    return QJsonDocument(content).toJson(QJsonDocument::Compact);
}

// False with the cause in errno, such as EEXIST. Who reads the file before it is written, or after
// a crash between, waits for the end of the term.
bool create(const QString& file, const QByteArray& content) {
    const FileDescriptor created(
        ::open(QFile::encodeName(file).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    return created.isOpen() && ::write(created.number(), content.constData(),
                                       std::size_t(content.size())) == content.size();
}

// Sets the time to that of the file server.
bool touch(const QString& file) {
    return ::utimensat(AT_FDCWD, QFile::encodeName(file).constData(), nullptr, 0) == 0;
}

std::optional<std::chrono::seconds> timeOf(const QString& file) {
    struct stat info {};
    if (::stat(QFile::encodeName(file).constData(), &info) != 0)
        return {};
    return std::chrono::seconds(info.st_mtim.tv_sec);
}

// The time of the file server; none when it can't be found out.
std::optional<std::chrono::seconds> serverTime(const QString& beside) {
    const QString probe = beside + u'.' + QUuid::createUuid().toString(QUuid::Id128);
    const bool isThere = create(probe, {}) && touch(probe);
    const auto now = isThere ? timeOf(probe) : std::nullopt;
    QFile::remove(probe);
    return now;
}

bool isAbandoned(const QString& file, const QByteArray& content) {
    const QJsonObject holder = QJsonDocument::fromJson(content).object();
    if (!holder.isEmpty() && ProcessIdentity::fromJson(holder).hasEnded())
        return true;
    const auto renewed = timeOf(file);
    const auto now = serverTime(file);
    return renewed && now && *now - *renewed > BookLease::term;
}

// Removes it, but not one that another process has taken in its place meanwhile.
void removeAbandoned(const QString& file, const QByteArray& content) {
    const QString aside = file + u'.' + QUuid::createUuid().toString(QUuid::Id128);
    const QByteArray from = QFile::encodeName(file);
    const QByteArray to = QFile::encodeName(aside);
    if (std::rename(from.constData(), to.constData()) != 0)
        return;
    if (Files::contents(aside) != content)
        ::link(to.constData(), from.constData());
    QFile::remove(aside);
}

} // namespace

BookLease::BookLease(QString file, QByteArray content)
    : iFile(std::move(file)), iContent(std::move(content)) {}

std::unique_ptr<BookLease> BookLease::take(const QString& file, Message* error) {
    *error = {};
    const QByteArray content = newContent();
    QDir().mkpath(QFileInfo(file).path());
    // The second time after an abandoned one is gone.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (create(file, content))
            return std::unique_ptr<BookLease>(new BookLease(file, content));
        if (errno != EEXIST) {
            *error = Message::about(file, Message::ofLastSystemError());
            return nullptr;
        }
        const QByteArray held = Files::contents(file);
        if (!isAbandoned(file, held))
            return nullptr;
        removeAbandoned(file, held);
    }
    return nullptr;
}

BookLease::~BookLease() {
    if (isOurs())
        QFile::remove(iFile);
}

bool BookLease::isOurs() const {
    return Files::contents(iFile) == iContent;
}

bool BookLease::renew() {
    return isOurs() && touch(iFile);
}
