#include "library/catalogue/BookOrder.h"

#include "library/catalogue/CatalogueBook.h"

#include <QHash>
#include <QLocale>

namespace {

// Greek and Cyrillic readers look for their letters; Chinese ones for none.
bool isOfAlphabet(QChar letter) {
    switch (letter.script()) {
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
    case QChar::Script_Hebrew:
    case QChar::Script_Arabic:
    case QChar::Script_Armenian:
    case QChar::Script_Georgian:
        return letter.isLetter();
    default:
        return false;
    }
}

} // namespace

const QCollator& BookOrder::collator(const QString& language) {
    static QHash<QString, QCollator> known; // to make one takes long
    auto order = known.find(language);
    if (order == known.end()) {
        order = known.insert(language, QCollator{QLocale(language)});
        order->setNumericMode(true);
    }
    return *order;
}

BookOrder::Numbers BookOrder::byTitle(const CatalogueBooks& books, Numbers numbers,
                                      const QString& language) {
    const auto title = [&](std::uint32_t number) {
        return sortText(books.at(int(number)).facts.title);
    };
    sort(numbers, title, language);
    return numbers;
}

BookOrder::Numbers BookOrder::byAuthor(const CatalogueBooks& books, Numbers byTitle,
                                       const QString& language) {
    const auto author = [&](std::uint32_t number) {
        return sortText(books.at(int(number)).firstAuthor());
    };
    sort(byTitle, author, language);
    const auto hasAuthor = [&](std::uint32_t number) { return !author(number).isEmpty(); };
    std::stable_partition(byTitle.begin(), byTitle.end(), hasAuthor);
    return byTitle;
}

BookOrder::Numbers BookOrder::byYear(const CatalogueBooks& books, Numbers byTitle) {
    std::vector<int> years(byTitle.size());
    for (const std::uint32_t number : byTitle)
        years[number] = books.at(int(number)).facts.year();
    std::stable_sort(byTitle.begin(), byTitle.end(), [&](std::uint32_t one, std::uint32_t other) {
        return years[one] > years[other];
    });
    return byTitle;
}

BookOrder::Numbers BookOrder::newest(const CatalogueBooks& books) {
    Numbers numbers(std::size_t(books.count()));
    std::iota(numbers.rbegin(), numbers.rend(), 0U);
    return numbers;
}

QString BookOrder::sortText(const QString& text) {
    const auto start = std::find_if(text.begin(), text.end(),
                                    [](QChar letter) { return letter.isLetterOrNumber(); });
    return start == text.end() ? text : text.mid(start - text.begin());
}

QString BookOrder::letterOf(const QString& text) {
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD)) {
        if (letter.isLetterOrNumber())
            return isOfAlphabet(letter) ? QString(letter.toUpper()) : QStringLiteral("#");
    }
    return QStringLiteral("#");
}
