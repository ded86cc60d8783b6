#include "library/catalogue/CatalogueTexts.h"

#include "base/PlatformException.h"
#include "library/catalogue/Markup.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <array>
#include <memory>
#include <unicode/uloc.h>
#include <unicode/upluralrules.h>

namespace {

const QString folder = QStringLiteral("AppFiles/Catalogue/texts");

// "one", "few" ...; "other" where that is not known.
QByteArray formFor(int count, const QString& language) {
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UPluralRules, decltype(&uplrules_close)> rules(
        uplrules_open(language.toUtf8().constData(), &error), &uplrules_close);
    std::array<UChar, 20> form{};
    const int32_t length = U_SUCCESS(error) ? uplrules_select(rules.get(), count, form.data(),
                                                              int32_t(form.size()), &error)
                                            : 0;
    return U_SUCCESS(error) ? QString::fromUtf16(form.data(), length).toLatin1() : "other";
}

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
    for (auto text = pages.begin(); text != pages.end(); ++text) {
        const QByteArray name = text.key().toLatin1();
        const QJsonObject forms = text.value().toObject();
        for (auto form = forms.begin(); form != forms.end(); ++form)
            iTexts[name + '.' + form.key().toLatin1()] = form.value().toString();
        iTexts[name] = forms.value(QStringLiteral("other")).toString(text.value().toString());
    }
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
    return counted(count == 1 ? "book" : "books", count);
}

QByteArray CatalogueTexts::counted(const char* name, int count) const {
    const QByteArray form = name + ('.' + formFor(count, iLanguage));
    return html(iHTML.contains(form) ? form.constData() : name, number(count));
}

QByteArray CatalogueTexts::number(int value) const {
    // The digits of years, labels and the search's script, which are those of all books.
    const bool hasOwn = iLocale.zeroDigit() != QStringLiteral("0");
    return (hasOwn ? QLocale(QLocale::English) : iLocale).toString(value).toUtf8();
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
