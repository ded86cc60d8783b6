#include "server/BookFile.h"

#include "output/BookLayout.h"
#include "system/MediaType.h"

#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace {

// The path below the folder, with a slash before each name; empty when the request is refused.
QByteArray pathOf(const QByteArray& target) {
    QByteArray escaped = target.split('?').front();
    if (!escaped.startsWith('/'))
        return {};
    if (escaped.endsWith('/'))
        escaped += BookLayout::defaultPage.toUtf8();
    QByteArray path;
    for (const QByteArray& part : escaped.split('/')) {
        if (part.isEmpty())
            continue;
        const QByteArray name = QByteArray::fromPercentEncoding(part);
        // A separator that appears only after decoding is an attempt to get around checks.
        if (name.startsWith('.') || name.contains('/') || name.contains('\\') ||
            name.contains('\0'))
            return {};
        path += '/' + name;
    }
    return path;
}

// The path with all links resolved; empty when it does not exist.
QByteArray realPath(const QByteArray& path) {
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.constData(), nullptr),
                                                      std::free);
    return QByteArray(real.get());
}

QByteArray tagOf(const struct stat& facts) {
    QByteArray tag;
    for (const auto number : {qint64(facts.st_mtim.tv_sec), qint64(facts.st_mtim.tv_nsec),
                              qint64(facts.st_size), qint64(facts.st_ino)})
        tag += (tag.isEmpty() ? "" : "-") + QByteArray::number(number, 36);
    return '"' + tag + '"';
}

QByteArray httpDate(qint64 secondsSinceEpoch) {
    return QLocale::c()
        .toString(QDateTime::fromSecsSinceEpoch(secondsSinceEpoch, Qt::UTC),
                  QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"))
        .toLatin1();
}

} // namespace

std::optional<BookFile> BookFile::open(const QString& folder, const QByteArray& target) {
    const QByteArray path = pathOf(target);
    const QByteArray root = realPath(QFile::encodeName(folder));
    if (path.isEmpty() || root.isEmpty())
        return {};
    const QByteArray file = realPath(root + path);
    if (!file.startsWith(root.endsWith('/') ? root : root + '/'))
        return {};
    // Opening a pipe must not block.
    FileDescriptor descriptor(
        ::open(file.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    struct stat facts {};
    if (!descriptor.isOpen() || ::fstat(descriptor.number(), &facts) != 0 ||
        !S_ISREG(facts.st_mode))
        return {};
    return BookFile{std::move(descriptor), facts.st_size,
                    MediaType::withCharacterSet(QFile::decodeName(path)), tagOf(facts),
                    httpDate(facts.st_mtim.tv_sec)};
}
