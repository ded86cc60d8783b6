#pragma once

#include <QHash>
#include <QString>

// A text with placeholders "${NAME}". White space at both ends of the text and after each "}" is
// dropped. A placeholder at the very start, or one that follows another with only white space
// between, ends the substitution: the rest is copied as it is.
class TextTemplate {
public:
    explicit TextTemplate(const QString& text) : iFromStr(text) {}

    // Names without a value are replaced by the empty text.
    void setItem(const QString& name, const QString& value) { iKeyAndValues[name] = value; }

    // The text with all placeholders replaced, in linear time.
    QString parse() const;

private:
    QString iFromStr;
    QHash<QString, QString> iKeyAndValues;
};
