#pragma once

#include <QString>
#include <QUrl>
#include <optional>

// Where on the web a book will be.
class BookAddress {
public:
    // From an absolute address of the book's folder or page, with http or https, without user,
    // query and fragment; none for other texts. Without .html at its end it names a folder.
    static std::optional<BookAddress> from(const QString& text);

    // The addresses of the page, by the name of its file, and of a file, by its path in the book.
    QString page(const QString& name) const;
    QString file(const QString& path) const;

private:
    explicit BookAddress(const QUrl& url) : iURL(url) {}

    QUrl iURL;
};
