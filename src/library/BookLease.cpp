#include "library/BookLease.h"

#include "library/ProcessIdentity.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QCryptographicHash>
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

using std::chrono::steady_clock;

namespace {

// Of claims on claims: each needs a process that was killed within the milliseconds of one.
constexpr int mostClaims = 3;

QByteArray newContent() {
    QJsonObject content = ProcessIdentity::own().asJson();
    // Two leases of one process differ.
    content[QStringLiteral("token")] = QUuid::createUuid().toString(QUuid::Id128);
    return QJsonDocument(content).toJson(QJsonDocument::Compact);
}

FileDescriptor opened(const QString& file, int flags) {
    constexpr mode_t permissions = 0666;
    return FileDescriptor(
        ::open(QFile::encodeName(file).constData(), flags | O_CLOEXEC, permissions));
}

// Also sets the time to that of the file server. False with the cause in errno, such as EEXIST. Who
// reads the file before it is written, or after a crash between, waits for the end of the term.
bool create(const QString& file, const QByteArray& content) {
    FileDescriptor created = opened(file, O_WRONLY | O_CREAT | O_EXCL);
    if (!created.isOpen())
        return false;
    const bool isWritten = ::write(created.number(), content.constData(),
                                   std::size_t(content.size())) == content.size() &&
                           ::futimens(created.number(), nullptr) == 0 && created.close();
    if (!isWritten) {
        const int cause = errno;
        QFile::remove(file);
        errno = cause;
    }
    return isWritten;
}

// Of an open file: on a network share, the attributes of others may be a minute old.
std::optional<std::chrono::seconds> timeOf(const FileDescriptor& file) {
    struct stat info {};
    if (!file.isOpen() || ::fstat(file.number(), &info) != 0)
        return {};
    return std::chrono::seconds(info.st_mtim.tv_sec);
}

// The time of the file server; none when it can't be found out.
std::optional<std::chrono::seconds> serverTime(const QString& beside) {
    const QString clock = Files::join(QFileInfo(beside).path(), BookLease::clockFile);
    FileDescriptor file = opened(clock, O_WRONLY | O_CREAT);
    if (!file.isOpen() && QFile::remove(clock)) // of another user
        file = opened(clock, O_WRONLY | O_CREAT);
    return file.isOpen() && ::futimens(file.number(), nullptr) == 0 ? timeOf(file) : std::nullopt;
}

bool isAbandoned(const QString& file, const QByteArray& content) {
    const QJsonObject holder = QJsonDocument::fromJson(content).object();
    if (!holder.isEmpty() && ProcessIdentity::fromJson(holder).hasEnded())
        return true;
    const auto renewed = timeOf(opened(file, O_RDONLY));
    const auto now = serverTime(file);
    return renewed && now && *now - *renewed > BookLease::term;
}

// The file by which processes agree who takes over a lease with this content.
QString claimOn(const QString& file, const QByteArray& content) {
    constexpr qsizetype digits = 16;
    const QByteArray digest =
        QCryptographicHash::hash(content, QCryptographicHash::Blake2b_160).toHex();
    return file + u'.' + QString::fromLatin1(digest.left(digits));
}

// Creates the file, or replaces that of an abandoned lease. No rename is conditional, but creating
// a file is: of all who find the same lease abandoned, one creates the claim on it, and renames
// that over the lease. A claim that was left behind is itself taken over in the same way.
bool acquire(const QString& file, const QByteArray& content, int claims = 0) {
    if (create(file, content))
        return true;
    if (errno != EEXIST)
        return false;
    const QByteArray held = Files::contents(file);
    if (claims == mostClaims || !isAbandoned(file, held)) {
        errno = EEXIST;
        return false;
    }
    const QString claim = claimOn(file, held);
    if (!acquire(claim, content, claims + 1))
        return false;
    // A faster one may have had the same claim, taken over, and even given back since. A share may
    // report an error of a rename that it did.
    const bool isTaken = Files::contents(file) == held && isAbandoned(file, held) &&
                         (std::rename(QFile::encodeName(claim).constData(),
                                      QFile::encodeName(file).constData()) == 0 ||
                          Files::contents(file) == content);
    if (!isTaken) {
        QFile::remove(claim);
        errno = EEXIST;
    }
    return isTaken;
}

} // namespace

BookLease::BookLease(QString file, QByteArray content, steady_clock::time_point taken)
    : iFile(std::move(file)), iContent(std::move(content)), iRenewed(taken) {}

std::unique_ptr<BookLease> BookLease::take(const QString& file, Message* error) {
    *error = {};
    const auto now = steady_clock::now();
    const QByteArray content = newContent();
    if (!QFileInfo::exists(QFileInfo(file).path()))
        QDir().mkpath(QFileInfo(file).path());
    if (acquire(file, content))
        return std::unique_ptr<BookLease>(new BookLease(file, content, now));
    if (errno != EEXIST)
        *error = Message::about(file, Message::ofLastSystemError());
    return nullptr;
}

// Not after the term: another one could take it over between the look and the removal.
BookLease::~BookLease() {
    if (steady_clock::now() - iRenewed < term - renewal && isOurs())
        QFile::remove(iFile);
}

bool BookLease::isOurs() const {
    return Files::contents(iFile) == iContent;
}

bool BookLease::renew() {
    const auto now = steady_clock::now();
    if (!isOurs() || ::utimensat(AT_FDCWD, QFile::encodeName(iFile).constData(), nullptr, 0) != 0)
        return false;
    iRenewed = now;
    return true;
}
