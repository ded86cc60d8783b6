#include "template/TemplateFile.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "template/XMLEntities.h"
#include "template/XMLRepair.h"
#include "util/XMLText.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>
#include <algorithm>

namespace {

constexpr ErrorKind errorKind = ErrorKind::templateFile;

pugi::xml_parse_result parse(pugi::xml_document& document, const QByteArray& data) {
    return document.load_buffer(data.constData(), static_cast<std::size_t>(data.size()),
                                pugi::parse_default | pugi::parse_ws_pcdata, pugi::encoding_utf8);
}

Message causeOf(const pugi::xml_parse_result& result, const QByteArray& data) {
    const auto end = data.begin() + std::clamp<qsizetype>(result.offset, 0, data.size());
    const auto line = 1 + std::count(data.begin(), end, '\n');
    return Message::translate("TemplateFile", "line %1: %2")
        .arg(QString::number(line), Message::translate("XMLParser", result.description()));
}

QByteArray contentsOf(const QString& path) {
    errno = 0;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw PlatformException(errorKind, Message::ofLastSystemError());
    return file.readAll();
}

// The encoding in the XML declaration; empty without one.
QByteArray declaredEncoding(const QByteArray& data) {
    constexpr qsizetype maxDeclarationLength = 256;
    static const QRegularExpression declaration(
        QStringLiteral(R"re(^\s*<\?xml\s[^>]*?\bencoding\s*=\s*["']([^"'>]*)["'])re"));
    return declaration.match(QString::fromLatin1(data.left(maxDeclarationLength)))
        .captured(1)
        .toLatin1();
}

// A byte order mark, or 16 or 32 bits per character, takes precedence over the declaration.
QByteArray inUTF8(const QByteArray& data) {
    if (const auto unicode = QStringConverter::encodingForData(data, u'<')) {
        QStringDecoder decode(*unicode);
        return QString(decode(data)).toUtf8();
    }
    const QByteArray name = declaredEncoding(data);
    const QByteArray lower = name.toLower();
    if (lower.isEmpty() || lower.startsWith("utf") || lower == "us-ascii")
        return data;
    // Texts declared as GB2312 often use characters of its successors.
    QStringDecoder decode(lower == "gb2312" ? "GB18030" : name.constData());
    const QString text = decode.isValid() ? QString(decode(data)) : QString();
    const QString shown = QString::fromLatin1(name);
    if (!decode.isValid())
        throw PlatformException(
            errorKind,
            Message::translate("TemplateFile", "the encoding \"%1\" is not known").arg(shown));
    if (decode.hasError())
        throw PlatformException(
            errorKind,
            Message::translate("TemplateFile", "is not in the encoding \"%1\" that it declares")
                .arg(shown));
    return text.toUtf8();
}

} // namespace

std::unique_ptr<pugi::xml_document> TemplateFile::read(const QString& path) {
    const QByteArray data = XMLEntities::resolved(inUTF8(contentsOf(path)));
    auto document = std::make_unique<pugi::xml_document>();
    const pugi::xml_parse_result first = parse(*document, data);
    if (first)
        return document;
    // The position in the user's file is more useful than one in the repaired text.
    const Message cause = causeOf(first, data);
    const QByteArray repaired = XMLRepair::repaired(data);
    if (repaired.isEmpty() || !parse(*document, repaired))
        throw PlatformException(errorKind, cause);
    Log("TemplateFile")
        .warn(QStringLiteral("repaired the template file \"%1\" (%2)").arg(path, cause.english()));
    return document;
}

pugi::xml_node TemplateFile::required(const pugi::xml_node& parent, const char* name,
                                      const std::function<Message()>& describeParent) {
    const pugi::xml_node child = parent.child(name);
    if (!child)
        //: %1 is another element of the file.
        throw PlatformException(errorKind,
                                Message::translate("TemplateFile", "%1 lacks its \"%2\" element")
                                    .arg(describeParent(), QString::fromUtf8(name)));
    return child;
}

QString TemplateFile::requiredText(const pugi::xml_node& parent, const char* name,
                                   const std::function<Message()>& describeParent) {
    return XMLText::textOf(required(parent, name, describeParent));
}
