#pragma once

#include <QByteArray>
#include <QHash>
#include <QJsonObject>
#include <QLocale>
#include <QString>
#include <QStringList>

// What a catalogue says to its readers, in one language; from a file of the resources.
class CatalogueTexts {
public:
    // Codes of the languages there are, such as "de".
    static QStringList languages();

    // Throws PlatformException when the file is missing or damaged.
    explicit CatalogueTexts(const QString& language);

    const QString& language() const { return iLanguage; }
    bool isRightToLeft() const { return iLocale.textDirection() == Qt::RightToLeft; }
    // In HTML, with values for {0} and {1}, which are HTML already.
    QByteArray html(const char* name, const QByteArray& first = {},
                    const QByteArray& second = {}) const;
    // A text with a number, in the form that the language has for it.
    QByteArray counted(const char* name, int count) const;
    // "1 book", "1,234 books"
    QByteArray books(int count) const;
    QString text(const char* name) const;
    QByteArray number(int value) const;
    // The name of the language with that tag; the tag itself when it has none.
    QString nameOf(const QString& languageTag) const;
    // Those for the script of the search.
    QJsonObject forScript() const;

private:
    QString iLanguage;
    QLocale iLocale;
    QJsonObject iScript;
    QHash<QByteArray, QString> iTexts;
    QHash<QByteArray, QByteArray> iHTML; // that of a form by "NAME.FORM"
};
