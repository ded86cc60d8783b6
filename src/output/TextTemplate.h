#pragma once

#include <QHash>
#include <QString>

// A text with placeholders "${NAME}". White space at both ends of the text and after each "}" is
// dropped. A placeholder at the very start, or one that follows another with nothing but white
// space between, ends the substitution: the text from there on is copied as it stands.
class TextTemplate {
public:
    explicit TextTemplate(const QString& text) : iFromStr(text) {}

    // A name without a value stands for the empty text.
    void setItem(const QString& name, const QString& value) { iKeyAndValues[name] = value; }

    // The filled-in text; takes time in proportion to its length.
    QString parse() const;

private:
    QString iFromStr;
    QHash<QString, QString> iKeyAndValues;
};
