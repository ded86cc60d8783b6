#include "app/AppSettings.h"

#include "base/Log.h"
#include "pages/Book.h"

#include <QMetaProperty>
#include <QSettings>
#include <memory>
#include <mutex>
#include <vector>

namespace {

std::unique_ptr<AppSettings> gSetting;

std::vector<QMetaProperty> declaredProperties() {
    const QMetaObject& meta = AppSettings::staticMetaObject;
    std::vector<QMetaProperty> properties;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index)
        properties.push_back(meta.property(index));
    return properties;
}

bool isText(const QMetaProperty& property) {
    return property.metaType().id() == QMetaType::QString;
}

// QSettings returns a list for an unquoted text with commas, as typed into its file by hand.
QString textOf(const QVariant& stored) {
    return stored.typeId() == QMetaType::QStringList ? stored.toStringList().join(u',')
                                                     : stored.toString();
}

} // namespace

AppSettings::AppSettings() {
    loadSettings();
    for (QString* text : {&iLastImportedFile, &iImportPageRange, &iLastOutputFileFolder,
                          &iLastOutputFileName, &iLastOutputFileTitle}) {
        if (text->isNull())
            *text = QStringLiteral("");
    }
    setPageSize(Book::defaultPageSize);
}

AppSettings& AppSettings::shareInstance() {
    static std::mutex creation;
    const std::lock_guard lock(creation);
    if (!gSetting)
        gSetting = std::make_unique<AppSettings>();
    return *gSetting;
}

void AppSettings::saveSettings() {
    autoSave();
}

void AppSettings::loadSettings() {
    autoLoad();
}

void AppSettings::autoSave() {
    QSettings store;
    for (const QMetaProperty& property : declaredProperties()) {
        const QVariant value = property.read(this);
        const QString name = QString::fromLatin1(property.name());
        // QSettings can't distinguish a null text from an empty one.
        if (isText(property) && value.toString().isNull())
            store.remove(name);
        else
            store.setValue(name, value);
    }
    store.sync();
    if (store.status() != QSettings::NoError)
        Log("AppSettings")
            .warn(QStringLiteral("can't write the settings to \"%1\"").arg(store.fileName()));
}

void AppSettings::autoLoad() {
    const QSettings store;
    for (const QMetaProperty& property : declaredProperties()) {
        const QVariant stored = store.value(QString::fromLatin1(property.name()));
        if (isText(property))
            property.write(this, stored.isValid() ? textOf(stored) : QString());
        else if (stored.isValid())
            property.write(this, stored.toInt());
    }
}
