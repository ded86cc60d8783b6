#pragma once

#include <QByteArray>
#include <QString>

// What a book was made from. It is kept in a hidden file beside the book's page, so that the same
// need not be made twice.
struct BookStamp {
    // A document, by which it is recognised without reading it again.
    struct Document {
        qint64 size = -1;
        qint64 modified = 0; // in nanoseconds
        qint64 read = 0;     // when the digest was taken
        QByteArray digest;   // empty when it can't be read
    };

    Document document;
    QByteArray pages; // digest of what the files of the pages depend on
    QByteArray book;  // digest of what anything in the book depends on

    // A digest of the file, read only when it is not as an earlier stamp describes it.
    static Document documentAt(const QString& path, const BookStamp& earlier);

    // The stamp of a book's page or application; without digests when there is none, or the book's
    // files are not those that it was written for.
    static BookStamp of(const QString& page);
    // Describes the book's files as they are. A stamp that can't be written is only logged: the
    // book will be made once more.
    void write(const QString& page) const;

    // Removes the stamp while the book changes: a run that is killed must not leave that of another
    // book. Afterwards it is there again, unless there is a new one.
    class Removal {
    public:
        explicit Removal(const QString& page);
        ~Removal();
        Removal(const Removal&) = delete;
        Removal& operator=(const Removal&) = delete;
        // The book is another one now.
        void keep() { iContent.clear(); }

    private:
        QString iPath;
        QByteArray iContent;
    };
};
