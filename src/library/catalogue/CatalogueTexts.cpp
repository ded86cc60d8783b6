#include "library/catalogue/CatalogueTexts.h"

#include "base/PlatformException.h"
#include "library/catalogue/Markup.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <array>
#include <unicode/uloc.h>

namespace {

const QString folder = QStringLiteral("AppFiles/Catalogue/texts");

} // namespace

QStringList CatalogueTexts::languages() {
    QStringList codes;
    for (const QString& path : Bundle::pathsForResourcesOfType(QStringLiteral("json"), folder))
        codes << QFileInfo(path).completeBaseName();
    return codes;
}

CatalogueTexts::CatalogueTexts(const QString& language) : iLanguage(language), iLocale(language) {
    const QString path = Bundle::pathForResource(language, QStringLiteral("json"), folder);
    Message cause;
    const QByteArray json = path.isNull() ? QByteArray() : Files::contents(path, &cause);
    const QJsonObject all = QJsonDocument::fromJson(json).object();
    const QJsonObject pages = all[QStringLiteral("pages")].toObject();
    iScript = all[QStringLiteral("search")].toObject();
    if (pages.isEmpty() || iScript.isEmpty())
        throw PlatformException(ErrorKind::publishing,
                                Message(QStringLiteral("%1/%2.json: the installation of Folvero is "
                                                       "damaged")
                                            .arg(folder, language)));
    for (auto text = pages.begin(); text != pages.end(); ++text)
        iTexts[text.key().toLatin1()] = text.value().toString();
    for (auto text = iTexts.begin(); text != iTexts.end(); ++text)
        iHTML[text.key()] = Markup::escaped(text.value());
}

QString CatalogueTexts::text(const char* name) const {
    return iTexts.value(name);
}

QByteArray CatalogueTexts::html(const char* name, const QByteArray& first,
                                const QByteArray& second) const {
    QByteArray text = iHTML.value(name);
    if (!first.isNull())
        text.replace("{0}", first).replace("{1}", second);
    return text;
}

QByteArray CatalogueTexts::books(int count) const {
    return html(count == 1 ? "book" : "books", number(count));
}

QByteArray CatalogueTexts::number(int value) const {
    return iLocale.toString(value).toUtf8();
}

QString CatalogueTexts::nameOf(const QString& languageTag) const {
    std::array<UChar, 200> name{};
    UErrorCode error = U_ZERO_ERROR;
    const int32_t length =
        uloc_getDisplayName(languageTag.toUtf8().constData(), iLanguage.toUtf8().constData(),
                            name.data(), int32_t(name.size()), &error);
    const bool isKnown = U_SUCCESS(error) && length > 0 && length < int32_t(name.size());
    return isKnown ? QString::fromUtf16(name.data(), length) : languageTag;
}

QJsonObject CatalogueTexts::forScript() const {
    return iScript;
}
