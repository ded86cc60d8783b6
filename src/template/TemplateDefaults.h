#pragma once

#include <QHash>
#include <QString>

class FlashTemplate;
class FlashTemplateProperty;

// What the settings are before the user changes them: the values of the template with its style,
// and for some keys those of the document.
class TemplateDefaults {
public:
    // Reads template and style again from the library, whatever has been edited in tmpl.
    void read(const FlashTemplate& tmpl);
    // The value that counts instead for whatever template is read.
    void setOfDocument(const QString& key, const QString& value) { iOfDocument[key] = value; }

    // Null for a property that has no value of its own, such as a group.
    QString valueFor(const FlashTemplateProperty& property) const;
    // Whether the value means something else than the default; the spelling does not matter.
    bool isChanged(const FlashTemplateProperty& property) const;

private:
    QHash<QString, QString> iOfTemplate; // by key
    QHash<QString, QString> iOfDocument;
};
