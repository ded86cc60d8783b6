#include "library/catalogue/CatalogueSettings.h"

#include "library/LibraryLayout.h"
#include "system/Files.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <utility>

namespace {

using Member = QString CatalogueSettings::*;

const std::array<std::pair<QString, Member>, 5>& members() {
    static const std::array<std::pair<QString, Member>, 5> all{
        {{QStringLiteral("title"), &CatalogueSettings::title},
         {QStringLiteral("language"), &CatalogueSettings::language},
         {QStringLiteral("address"), &CatalogueSettings::address},
         {QStringLiteral("contact"), &CatalogueSettings::contact},
         {QStringLiteral("gateway"), &CatalogueSettings::gateway}}};
    return all;
}

QString fileIn(const LibraryLayout& library) {
    return library.stateAt(QStringLiteral("catalogue.json"));
}

} // namespace

CatalogueSettings CatalogueSettings::completed(const CatalogueSettings& given,
                                               const LibraryLayout& library) {
    const QJsonObject earlier = QJsonDocument::fromJson(Files::contents(fileIn(library))).object();
    CatalogueSettings all = given;
    for (const auto& [name, member] : members()) {
        if ((all.*member).isNull())
            all.*member = earlier[name].toString();
    }
    if (all.language.isEmpty())
        all.language = QStringLiteral("en");
    if (all.title.isEmpty())
        all.title = QFileInfo(library.folder()).fileName();
    return all;
}

Message CatalogueSettings::remember(const LibraryLayout& library) const {
    QJsonObject object;
    for (const auto& [name, member] : members()) {
        if (!(this->*member).isEmpty())
            object[name] = this->*member;
    }
    const QString file = fileIn(library);
    const QByteArray json = QJsonDocument(object).toJson();
    Message cause;
    if (Files::contents(file) == json || Files::writeAtomically(file, json, &cause))
        return {};
    return Message::about(file, cause);
}
