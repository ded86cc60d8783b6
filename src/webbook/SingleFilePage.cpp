#include "webbook/SingleFilePage.h"

#include "output/BookLayout.h"
#include "output/PublishTransaction.h"
#include "output/WebScript.h"
#include "system/Files.h"
#include "system/MediaType.h"
#include "util/Base91.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace {

// Bytes encoded at a time.
constexpr qint64 pieceBytes = Base91::pieceBytes << 14;

// These are inlined differently, or left out.
bool isOfPage(const QString& path) {
    return path == BookLayout::configuration || path == BookLayout::configurationScript ||
           path == BookLayout::webScript || path == BookLayout::webStyle;
}

bool writeEncoded(const QString& source, QFile& to) {
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        return false;
    while (!from.atEnd()) {
        const QByteArray piece = Base91::encode(from.read(pieceBytes));
        if (piece.isEmpty() || to.write(piece) != piece.size())
            return false;
    }
    return true;
}

} // namespace

SingleFilePage::SingleFilePage(const QByteArray& start, const std::map<QString, QString>& files,
                               const QByteArray& end) {
    addText(start);
    for (const auto& [path, source] : files) {
        if (!isOfPage(path))
            addFile(path, source);
    }
    addText(end);
}

void SingleFilePage::addFile(const QString& path, const QString& source) {
    const auto named = [](const QString& name) {
        return " data-file=\"" + name.toHtmlEscaped().toUtf8() + '"';
    };
    if (BookLayout::isData(path)) {
        addText("<script type=\"application/json\"" + named(BookLayout::dataName(path)) + '>' +
                WebScript::jsonIn(path, PublishTransaction::contents(source)) + "</script>\n");
        return;
    }
    iParts.push_back({"<script type=\"text/plain\"" + named(BookLayout::inFiles(path)) +
                          " data-type=\"" + MediaType::ofFile(path) + "\">",
                      source});
    addText("</script>\n");
}

qint64 SingleFilePage::size() const {
    qint64 size = 0;
    for (const Part& part : iParts) {
        const qint64 bytes = part.source.isNull() ? 0 : QFileInfo(part.source).size();
        size += part.text.size() + Base91::encodedSize(bytes);
    }
    return size;
}

bool SingleFilePage::write(const QString& path, Message* error) const {
    errno = 0;
    QFile file(path);
    bool written = file.open(QIODevice::WriteOnly);
    for (const Part& part : iParts) {
        written = written && file.write(part.text) == part.text.size() &&
                  (part.source.isNull() || writeEncoded(part.source, file));
    }
    written = written && file.flush();
    if (!written)
        *error = errno ? Message::ofLastSystemError() : Message(file.errorString());
    return written;
}
