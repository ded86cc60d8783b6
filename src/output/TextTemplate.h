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
    // The same; position is set to where in the result the value of the first placeholder of that
    // name begins, or to the result's end when the text has none that is replaced.
    QString parse(const QString& name, qsizetype& position) const;

private:
    QString filled(const QString& wanted, qsizetype& position) const;

    QString iFromStr;
    QHash<QString, QString> iKeyAndValues;
};
