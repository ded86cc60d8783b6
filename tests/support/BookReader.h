#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <vector>

// An element of a book's configuration.
struct BookElement {
    QString name;
    QString text;
    std::vector<BookElement> children;

    QStringList childNames() const;
    // The element that a path such as "Properties/Top" names; throws std::out_of_range for none.
    const BookElement& at(const QString& path) const;
    QString textAt(const QString& path) const { return at(path).text; }
};

// Reads published books by other means than those that wrote them. Every function throws
// std::runtime_error for what it can't read, which fails the test.
namespace BookReader {

// The root of the configuration beneath a book's folder.
BookElement configuration(const QString& bookFolder);
BookElement parse(const QByteArray& xml);
QByteArray decipher(const QByteArray& bytes);
// The enciphered bytes that a "UserConfig.js" holds.
QByteArray bytesOfScript(const QByteArray& script);

// Paths of all files beneath a folder, relative to it and sorted, hidden ones included.
QStringList filesBeneath(const QString& folder);
// The same with what is in them.
std::map<QString, QByteArray> contentsBeneath(const QString& folder);

} // namespace BookReader
