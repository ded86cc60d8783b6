#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

// What a catalogue says of a book, and the book of itself. Empty texts are unknown.
struct BookFacts {
    QString title;
    QString author;   // several are separated by semicolons
    QString date;     // as given: a year, an ISO 8601 date, or any text
    QString language; // a BCP 47 tag, such as "de"
    QString rights;   // a text or an address
    QString subject;  // several are separated by semicolons

    bool operator==(const BookFacts&) const = default;

    QStringList authors() const;
    QStringList subjects() const;
    // The first number of four digits in the date; 0 for none.
    int year() const;
    // The date when it is one of ISO 8601, from a year to a day; else null.
    QString isoDate() const;

    // These facts, and where they are unknown those of the others.
    BookFacts completedBy(const BookFacts& others) const;

    // An object with the known facts by name.
    QJsonObject asJson() const;
    static BookFacts fromJson(const QJsonObject& object);

    // The fact of that name, such as "author"; null for none.
    QString* named(const QString& name);

    // Whether a text may be a language: letters, digits and hyphens only.
    static bool isLanguage(const QString& text);
};
