#include "library/ListedIDs.h"

#include "library/BookList.h"
#include "library/LibraryLayout.h"
#include "system/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

// The first line has the digest, each of the others an ID.

Message ListedIDs::write(const LibraryLayout& to, BookList& list, const QByteArray& digest) {
    if (ListedIDs::digest(to) == digest)
        return {};
    QByteArray text = digest + '\n';
    list.rewind();
    for (ListedBook book; list.next(book);) {
        if (!book.id.isEmpty())
            text += book.id.toLatin1() + '\n';
    }
    QDir().mkpath(QFileInfo(to.list()).path());
    Message cause;
    return Files::writeAtomically(to.list(), text, &cause) ? Message()
                                                           : Message::about(to.list(), cause);
}

QByteArray ListedIDs::digest(const LibraryLayout& library) {
    QFile file(library.list());
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

void ListedIDs::forEach(const LibraryLayout& library,
                        const std::function<void(const QString&)>& visit) {
    QFile file(library.list());
    if (!file.open(QIODevice::ReadOnly))
        return;
    file.readLine();
    while (!file.atEnd())
        visit(QString::fromLatin1(file.readLine().trimmed()));
}
