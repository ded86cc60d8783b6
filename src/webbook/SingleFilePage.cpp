#include "webbook/SingleFilePage.h"

#include "output/BookLayout.h"
#include "output/PublishTransaction.h"
#include "output/WebScript.h"
#include "system/Files.h"
#include "system/MediaType.h"
#include "util/Base91.h"
#include "util/NSData+CocoaDevUsersAdditions.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace {

// Bytes encoded at a time.
constexpr qint64 pieceBytes = Base91::pieceBytes << 14;

QByteArray attribute(const char* name, const QString& value) {
    return QByteArray(" data-") + name + "=\"" + value.toHtmlEscaped().toUtf8() + '"';
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

SingleFilePage::SingleFilePage(const QByteArray& start, const Files& files, const QByteArray& end,
                               const std::function<void()>& checkCancelled) {
    addText(start);
    for (const auto& [path, source] : files) {
        checkCancelled();
        if (path.endsWith(u".js"))
            addScript(path, source);
        else
            addFile(path, source);
    }
    addText(end);
}

void SingleFilePage::addScript(const QString& path, const QString& source) {
    const bool isData = BookLayout::isData(path);
    const QByteArray script = PublishTransaction::contents(source);
    const QByteArray text = isData ? WebScript::jsonIn(path, script) : script;
    const QByteArray name =
        attribute("file", isData ? BookLayout::dataName(path) : BookLayout::inFiles(path));
    const QByteArray packed = Base91::encode(NSDataExtension::zlibDeflate(text));
    if (isData && packed.size() >= text.size())
        addText("<script type=\"application/json\"" + name + '>' + text + "</script>\n");
    else
        addText("<script type=\"text/plain\"" + name + " data-packed>" + packed + "</script>\n");
}

void SingleFilePage::addFile(const QString& path, const QString& source) {
    iParts.push_back({"<script type=\"text/plain\"" + attribute("file", BookLayout::inFiles(path)) +
                          attribute("type", QString::fromLatin1(MediaType::ofFile(path))) + '>',
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
