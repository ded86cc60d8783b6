#include "webbook/BookFacts.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <utility>

namespace {

using Member = QString BookFacts::*;

const std::array<std::pair<QString, Member>, 6>& members() {
    static const std::array<std::pair<QString, Member>, 6> all{
        {{QStringLiteral("title"), &BookFacts::title},
         {QStringLiteral("author"), &BookFacts::author},
         {QStringLiteral("date"), &BookFacts::date},
         {QStringLiteral("language"), &BookFacts::language},
         {QStringLiteral("rights"), &BookFacts::rights},
         {QStringLiteral("subject"), &BookFacts::subject}}};
    return all;
}

QStringList parts(const QString& text) {
    QStringList list;
    for (const QString& part : text.split(u';')) {
        const QString name = part.simplified();
        if (!name.isEmpty() && !list.contains(name))
            list << name;
    }
    return list;
}

} // namespace

QStringList BookFacts::authors() const {
    return parts(author);
}

QStringList BookFacts::subjects() const {
    return parts(subject);
}

int BookFacts::year() const {
    static const QRegularExpression digits(QStringLiteral("(?<!\\d)\\d{4}(?!\\d)"));
    return digits.match(date).captured().toInt();
}

QString BookFacts::isoDate() const {
    static const QRegularExpression form(QStringLiteral("^\\d{4}(-\\d\\d(-\\d\\d)?)?\\z"));
    return form.match(date).hasMatch() ? date : QString();
}

BookFacts BookFacts::completedBy(const BookFacts& others) const {
    BookFacts all = *this;
    for (const auto& [name, member] : members()) {
        if ((all.*member).isEmpty())
            all.*member = others.*member;
    }
    return all;
}

QJsonObject BookFacts::asJson() const {
    QJsonObject object;
    for (const auto& [name, member] : members()) {
        if (!(this->*member).isEmpty())
            object[name] = this->*member;
    }
    return object;
}

BookFacts BookFacts::fromJson(const QJsonObject& object) {
    BookFacts facts;
    for (const auto& [name, member] : members())
        facts.*member = object[name].toString();
    return facts;
}

QString* BookFacts::named(const QString& name) {
    for (const auto& [known, member] : members()) {
        if (known == name)
            return &(this->*member);
    }
    return nullptr;
}

bool BookFacts::isLanguage(const QString& text) {
    constexpr qsizetype maxLength = 35;
    return !text.isEmpty() && text.size() <= maxLength &&
           std::all_of(text.begin(), text.end(), [](QChar letter) {
               return letter.unicode() < 0x80 && (letter.isLetterOrNumber() || letter == u'-');
           });
}
