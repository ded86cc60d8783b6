#include "library/search/LibraryIndexer.h"

#include "base/PlatformException.h"
#include "library/search/SearchSegments.h"
#include "system/FileDescriptor.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <vector>

namespace {

[[noreturn]] void fail(const QString& path, const Message& cause) {
    throw PlatformException(ErrorKind::searchIndex, Message::about(path, cause));
}

// Keeps other runs from writing the same segments: a byte of a file is locked for each. The kernel
// releases the locks when the process ends, however it ends; they also hold between machines.
FileDescriptor lock(const LibraryLayout& library, const std::vector<int>& segments) {
    const QString path = Files::join(library.searchIndex(), QStringLiteral("lock"));
    FileDescriptor file(
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0666));
    if (!file.isOpen())
        fail(path, Message::ofLastSystemError());
    for (const int segment : segments) {
        struct flock place {};
        place.l_type = F_WRLCK;
        place.l_whence = SEEK_SET;
        place.l_start = segment;
        place.l_len = 1;
        // A file system may have no locks.
        if (::fcntl(file.number(), F_OFD_SETLK, &place) != 0 &&
            (errno == EAGAIN || errno == EACCES))
            fail(library.folder(),
                 Message(QStringLiteral("another run is indexing it")).temporary());
    }
    return file;
}

} // namespace

SegmentWriter::Report LibraryIndexer::update(const LibraryLayout& library, const Options& options) {
    std::vector<int> segments;
    for (int segment = options.shard; segment < SearchSegments::count; segment += options.shards)
        segments.push_back(segment);
    if (!QDir().mkpath(library.searchIndex()))
        fail(library.searchIndex(), Message::ofLastSystemError());
    const FileDescriptor held = lock(library, segments);
    const auto check = [&options] {
        if (options.isCancelled && options.isCancelled())
            throw PlatformException(ErrorKind::readStopped, Message(QStringLiteral("cancelled")));
    };
    SegmentWriter::Report all;
    int done = 0;
    for (const int segment : segments) {
        const auto report = SegmentWriter(library, segment, check).update();
        all.books += report.books;
        all.pages += report.pages;
        all.added += report.added;
        all.removed += report.removed;
        all.unreadable += report.unreadable;
        if (options.showProgress)
            options.showProgress(++done, int(segments.size()));
    }
    return all;
}
