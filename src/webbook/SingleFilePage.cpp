#include "webbook/SingleFilePage.h"

#include "output/WebScript.h"
#include "system/Files.h"
#include "system/MediaType.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <cerrno>

namespace {

// Bytes converted to base64 at a time: a multiple of three.
constexpr qint64 pieceBytes = 3 << 16;

const QString resourceFolder = QStringLiteral("files/");

// These are inlined differently, or left out.
bool isOfPage(const QString& name) {
    return name.startsWith(QStringLiteral("UserConfig.")) ||
           name.startsWith(QStringLiteral("web."));
}

bool isData(const QString& name) {
    static const QRegularExpression data(QStringLiteral("\\A(web|text|search)/[^/]+\\.js\\z"));
    return data.match(name).hasMatch();
}

void insertBefore(QByteArray& html, qsizetype place, const QByteArray& text) {
    if (place >= 0)
        html.insert(place, text);
}

bool writeInBase64(const QString& source, QFile& to) {
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly))
        return false;
    while (!from.atEnd()) {
        const QByteArray piece = from.read(pieceBytes).toBase64();
        if (piece.isEmpty() || to.write(piece) != piece.size())
            return false;
    }
    return true;
}

} // namespace

SingleFilePage::SingleFilePage(const std::map<QString, QString>& files, const QString& page) {
    const auto contents = [&files](const QString& path) {
        const auto found = files.find(path);
        return found == files.end() ? QByteArray() : Files::contents(found->second);
    };
    const auto ofPlayer = [&](const char* name) {
        return contents(resourceFolder + QString::fromLatin1(name));
    };
    QByteArray html = contents(page);
    insertBefore(html, html.indexOf("</head>"),
                 "<style>\n" + ofPlayer("web.css") + "</style>\n<script>\n" + ofPlayer("web.js") +
                     "</script>\n");
    // Before the page's first script, which would load them, and after the charset declaration,
    // which browsers expect at the very beginning.
    insertBefore(html, html.indexOf("<script"),
                 "<script>window.FolveroUserConfig = \"" + ofPlayer("UserConfig.bin").toBase64() +
                     "\";</script>\n");
    const qsizetype bodyEnd = std::max<qsizetype>(html.lastIndexOf("</body>"), 0);
    addText(html.left(bodyEnd));
    for (const auto& [path, source] : files) {
        if (path.startsWith(resourceFolder) && !isOfPage(path.mid(resourceFolder.size())))
            addFile(path.mid(resourceFolder.size()), source);
    }
    addText(html.mid(bodyEnd));
}

void SingleFilePage::addFile(const QString& name, const QString& source) {
    if (isData(name)) {
        const QString data = name.chopped(3);
        addText("<script type=\"application/json\" data-file=\"" + data.toHtmlEscaped().toUtf8() +
                "\">" + WebScript::jsonIn(data, Files::contents(source)) + "</script>\n");
        return;
    }
    iParts.push_back({"<script type=\"text/plain\" data-file=\"" + name.toHtmlEscaped().toUtf8() +
                          "\" data-type=\"" + MediaType::ofFile(name) + "\">",
                      source});
    addText("</script>\n");
}

qint64 SingleFilePage::size() const {
    qint64 size = 0;
    for (const Part& part : iParts) {
        const qint64 bytes = part.source.isNull() ? 0 : QFileInfo(part.source).size();
        size += part.text.size() + (bytes + 2) / 3 * 4;
    }
    return size;
}

bool SingleFilePage::write(const QString& path, Message* error) const {
    errno = 0;
    QFile file(path);
    bool written = file.open(QIODevice::WriteOnly);
    for (const Part& part : iParts) {
        written = written && file.write(part.text) == part.text.size() &&
                  (part.source.isNull() || writeInBase64(part.source, file));
    }
    written = written && file.flush();
    if (!written)
        *error = errno ? Message::ofLastSystemError() : Message(file.errorString());
    return written;
}
