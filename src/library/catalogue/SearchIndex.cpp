#include "library/catalogue/SearchIndex.h"

#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/Postings.h"
#include "library/catalogue/SiteFiles.h"
#include "output/WebScript.h"
#include "util/FoldedText.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <utility>

namespace {

constexpr int recordsAFile = 16;
constexpr int filesAFolder = 1000;
constexpr std::size_t suggestions = 150;

// Sizes of a file of words in bytes. Between them a file ends after a word whose digest says so,
// and not after a number of bytes: a new word then changes one file and not all that follow.
constexpr qsizetype leastWords = 8'000;
constexpr qsizetype mostWords = 40'000;
constexpr unsigned oneEndIn = 64;

enum Field : std::uint32_t { inTitle, inAuthor, inOther };
constexpr int fields = 3;

QByteArray digestOf(const QString& word) {
    return QCryptographicHash::hash(word.toUtf8(), QCryptographicHash::Blake2b_160);
}

void put(const CatalogueSite& site, const QByteArray& name, const QByteArray& json) {
    site.files.put(CatalogueLayout::data(name), "folveroData(\"" + name + "\", " + json + ");\n");
}

// Where words are: for each one a number, and its places as they come.
class WordPlaces {
public:
    void add(std::uint32_t book, Field field, const QString& text) {
        for (const QString& word : iFolder.words(text)) {
            auto known = iWords.find(word);
            if (known == iWords.end())
                known = iWords.insert(word, std::uint32_t(iWords.size()));
            iPlaces.emplace_back(*known, book * fields + field);
        }
    }

    // Words in the order in which scripts compare them.
    std::vector<std::pair<QString, std::uint32_t>> words() const {
        std::vector<std::pair<QString, std::uint32_t>> sorted;
        for (auto word = iWords.begin(); word != iWords.end(); ++word)
            sorted.emplace_back(word.key(), word.value());
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

    void sort() { std::sort(iPlaces.begin(), iPlaces.end()); }

    // A line of the file of words: the word, and the books that have it in title, author and
    // others.
    QByteArray line(const QString& word, std::uint32_t number) const {
        std::array<std::vector<std::uint32_t>, fields> books;
        auto place = std::lower_bound(iPlaces.begin(), iPlaces.end(), std::pair(number, 0U));
        for (; place != iPlaces.end() && place->first == number; ++place) {
            auto& list = books[place->second % fields];
            if (list.empty() || list.back() != place->second / fields)
                list.push_back(place->second / fields);
        }
        QByteArray text = word.toUtf8();
        for (const auto& list : books)
            text += ' ' + Postings::encoded(list);
        return text;
    }

private:
    TextFolder iFolder;
    QHash<QString, std::uint32_t> iWords;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> iPlaces; // word; book and field
};

// The files of words; for each its first word, name and size.
QJsonArray writeWords(const CatalogueSite& site) {
    WordPlaces places;
    for (int number = 0; number < site.books.count(); ++number) {
        const BookFacts facts = site.books.at(number).facts;
        const auto book = std::uint32_t(number);
        places.add(book, inTitle, facts.title);
        places.add(book, inAuthor, facts.author);
        places.add(book, inOther, facts.subject + u' ' + facts.date);
    }
    places.sort();
    QJsonArray files;
    QByteArray lines;
    QString first;
    const auto end = [&] {
        if (lines.isEmpty())
            return;
        const QByteArray name = digestOf(first).toHex().left(10);
        files << QJsonArray{first, QString::fromLatin1(name), lines.size()};
        put(site, "words/" + name, WebScript::json(QJsonArray{QString::fromUtf8(lines)}));
        lines.clear();
    };
    for (const auto& [word, number] : places.words()) {
        const QByteArray line = places.line(word, number);
        const bool isFull = lines.size() + line.size() > mostWords;
        if (isFull || (lines.size() >= leastWords &&
                       static_cast<unsigned char>(digestOf(word)[0]) % oneEndIn == 0))
            end();
        if (lines.isEmpty())
            first = word;
        lines += lines.isEmpty() ? line : '\n' + line;
    }
    end();
    return files;
}

QJsonArray recordOf(const CatalogueBook& book) {
    const BookFacts& facts = book.facts;
    return {QString::fromLatin1(CatalogueLayout::bookKey(book.id)),
            facts.title,
            facts.authors().join(QStringLiteral("; ")),
            facts.date,
            facts.language.toLower(),
            facts.subjects().join(QStringLiteral("; ")),
            book.cover};
}

void writeRecords(const CatalogueSite& site) {
    for (int start = 0; start < site.books.count(); start += recordsAFile) {
        QJsonArray records;
        for (int i = start; i < std::min(start + recordsAFile, site.books.count()); ++i)
            records << recordOf(site.books.at(i));
        const int file = start / recordsAFile;
        put(site,
            "books/" + QByteArray::number(file / filesAFolder) + '/' + QByteArray::number(file),
            WebScript::json(records));
    }
}

QJsonArray writeLanguages(const CatalogueSite& site) {
    QJsonArray all;
    std::vector<const BookGroup*> groups = site.languages.largest(SIZE_MAX);
    for (const BookGroup* group : groups) {
        put(site, "languages/" + group->slug,
            WebScript::json(QJsonArray{QString::fromLatin1(Postings::encoded(group->books))}));
        all << QJsonArray{group->name, QString::fromLatin1(group->slug),
                          site.nameOf(site.languages, *group), group->count()};
    }
    return all;
}

// A file for each decade with its years, and one for the books without; decades and sizes, the
// latter as that of decade 0.
QJsonArray writeYears(const CatalogueSite& site) {
    std::map<int, QJsonArray> decades;
    for (const BookGroup& group : site.years.all()) {
        const int year = group.name.toInt();
        decades[year / 10] << QJsonArray{year, QString::fromLatin1(Postings::encoded(group.books))};
    }
    std::vector<std::uint32_t> undated;
    for (int number = 0; number < site.books.count(); ++number) {
        if (site.books.at(number).facts.year() == 0)
            undated.push_back(std::uint32_t(number));
    }
    decades[0] << QJsonArray{0, QString::fromLatin1(Postings::encoded(undated))};
    QJsonArray all;
    for (const auto& [decade, years] : decades) {
        const QByteArray json = WebScript::json(years);
        put(site, "years/" + QByteArray::number(decade), json);
        all << QJsonArray{decade, json.size()};
    }
    return all;
}

QJsonArray namesOf(const BookGroups& groups) {
    QJsonArray names;
    for (const BookGroup* group : groups.largest(suggestions))
        names << group->name;
    return names;
}

} // namespace

void SearchIndex::write(const CatalogueSite& site) {
    writeRecords(site);
    QJsonObject start{{QStringLiteral("version"), 1},
                      {QStringLiteral("books"), site.books.count()},
                      {QStringLiteral("recordsAFile"), recordsAFile},
                      {QStringLiteral("filesAFolder"), filesAFolder}};
    start[QStringLiteral("words")] = writeWords(site);
    start[QStringLiteral("languages")] = writeLanguages(site);
    start[QStringLiteral("decades")] = writeYears(site);
    start[QStringLiteral("authors")] = namesOf(site.authors);
    start[QStringLiteral("subjects")] = namesOf(site.subjects);
    put(site, "start", WebScript::json(start));
}
