#include "base/Log.h"
#include "system/Files.h"
#include "template/FlashTemplate.h"
#include "template/TextDecoding.h"

#include <QFile>

namespace {

constexpr Log settingsLog("FlashTemplate");

// This order, LF before CR, is part of the format.
const QString recordStart = QStringLiteral("\n\r");

QString textOfFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? TextDecoding::decoded(file.readAll()) : QString();
}

QString recordOf(const FlashTemplateProperty& node) {
    return node.key().replace(recordStart, QStringLiteral("|||")) + u'=' + node.value();
}

} // namespace

int FlashTemplate::importPropertiesSettingsFrom(const QString& path) {
    const QString pageWidth = propertyValueFor(QStringLiteral("pageWidth"), QStringLiteral("960"));
    const QString pageHeight =
        propertyValueFor(QStringLiteral("pageHeight"), QStringLiteral("600"));
    int known = 0;
    for (QString& line : textOfFile(path).split(u'\n')) {
        line.remove(u'\r');
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0)
            continue;
        const QString key = line.left(equals);
        const QString value = line.mid(equals + 1);
        if (key == u"innerMainbgImgUrl")
            settingsLog.debug(QStringLiteral("key 0[%1=%2]").arg(key, value));
        setPropertyValue(key, value);
        known += propertyValueFor(key, QString()).isNull() ? 0 : 1;
    }
    // The page size belongs to the imported document, not to a style.
    setPropertyValue(QStringLiteral("pageWidth"), pageWidth);
    setPropertyValue(QStringLiteral("pageHeight"), pageHeight);
    return known;
}

QByteArray FlashTemplate::settings(const QStringList& leftOut) const {
    QStringList records;
    exportPropertiesSettingsToArray(records, nullptr);
    QString text;
    for (const QString& record : records) {
        if (!leftOut.contains(record.section(u'=', 0, 0)))
            text += recordStart + record;
    }
    return text.toUtf8();
}

bool FlashTemplate::exportPropertiesSettingsTo(const QString& path, Message* error) const {
    Message cause;
    const bool written = Files::writeAtomically(path, settings(), &cause);
    if (!written)
        settingsLog.warn(
            QStringLiteral("can't write the settings file \"%1\": %2").arg(path, cause.english()));
    if (error)
        *error = cause;
    return written;
}

void FlashTemplate::exportPropertiesSettingsToArray(QStringList& records,
                                                    const FlashTemplateProperty* fromPro) const {
    if (fromPro)
        records << recordOf(*fromPro);
    for (const auto& child : fromPro ? fromPro->childProperties() : iProperties)
        exportPropertiesSettingsToArray(records, child.get());
}
