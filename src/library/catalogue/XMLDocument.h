#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QXmlStreamWriter>
#include <utility>

class QIODevice;

// Writes an XML file; texts lose characters that XML does not allow.
class XMLDocument {
public:
    using Attributes = QList<std::pair<const char*, QString>>;

    // Into a byte array, or a device that is open; both outlive this.
    explicit XMLDocument(QByteArray* bytes);
    explicit XMLDocument(QIODevice* device);

    void start(const char* element, const Attributes& attributes = {});
    void end();
    // Nothing for an empty text.
    void text(const char* element, const QString& text, const Attributes& attributes = {});
    void empty(const char* element, const Attributes& attributes);
    // Ends all elements; then all is written.
    void finish();

private:
    void begin();
    void add(const Attributes& attributes);

    QByteArray* iBytes = nullptr;
    QString iText; // for the bytes: to write them piece by piece takes twice as long
    QXmlStreamWriter iWriter;
};
