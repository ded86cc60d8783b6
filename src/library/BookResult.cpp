#include "library/BookResult.h"

#include "library/LibraryLayout.h"
#include "system/Files.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace {

using State = BookResult::State;

const std::array<std::pair<State, QString>, 4>& stateNames() {
    static const std::array<std::pair<State, QString>, 4> names{
        {{State::made, QStringLiteral("made")},
         {State::incomplete, QStringLiteral("incomplete")},
         {State::failed, QStringLiteral("failed")},
         {State::tryAgain, QStringLiteral("tryAgain")}}};
    return names;
}

QString nameOf(State state) {
    return stateNames().at(std::size_t(state)).second;
}

std::optional<State> stateNamed(const QString& name) {
    for (const auto& [state, known] : stateNames()) {
        if (known == name)
            return state;
    }
    return {};
}

QString asText(const QDateTime& time) {
    return time.toUTC().toString(Qt::ISODate);
}

QDateTime timeIn(const QJsonValue& text) {
    return QDateTime::fromString(text.toString(), Qt::ISODate);
}

QJsonObject asJson(const BookResult::Made& made) {
    return {{QStringLiteral("pages"), made.pages},
            {QStringLiteral("bytes"), made.bytes},
            {QStringLiteral("files"), made.files},
            {QStringLiteral("cover"), made.cover},
            {QStringLiteral("added"), asText(made.added)},
            {QStringLiteral("changed"), asText(made.changed)},
            {QStringLiteral("documentFacts"), made.documentFacts.asJson()}};
}

BookResult::Made madeFrom(const QJsonObject& object) {
    return {object[QStringLiteral("pages")].toInt(),
            object[QStringLiteral("bytes")].toInteger(),
            object[QStringLiteral("files")].toInt(),
            object[QStringLiteral("cover")].toString(),
            timeIn(object[QStringLiteral("added")]),
            timeIn(object[QStringLiteral("changed")]),
            BookFacts::fromJson(object[QStringLiteral("documentFacts")].toObject())};
}

// The result files in a folder and below it by their IDs, sorted.
std::vector<std::pair<QString, QString>> filesIn(const QString& folder) {
    std::vector<std::pair<QString, QString>> files;
    QDirIterator all(folder, {QStringLiteral("*.json")}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        files.emplace_back(QFileInfo(path).completeBaseName(), path);
    }
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace

BookFacts BookResult::allFacts() const {
    BookFacts all = made ? facts.completedBy(made->documentFacts) : facts;
    if (all.title.isEmpty())
        all.title = QFileInfo(pdf).completeBaseName();
    return all;
}

std::optional<BookResult> BookResult::read(const QString& file) {
    const QJsonObject object = QJsonDocument::fromJson(Files::contents(file)).object();
    const auto state = stateNamed(object[QStringLiteral("state")].toString());
    if (!state)
        return {};
    BookResult result;
    result.id = object[QStringLiteral("id")].toString();
    result.pdf = object[QStringLiteral("pdf")].toString();
    result.facts = BookFacts::fromJson(object[QStringLiteral("facts")].toObject());
    result.state = *state;
    result.reason = object[QStringLiteral("reason")].toString();
    result.exitCode = object[QStringLiteral("exitCode")].toInt();
    result.inputs = object[QStringLiteral("inputs")].toString().toLatin1();
    result.run = object[QStringLiteral("run")].toString();
    result.host = object[QStringLiteral("host")].toString();
    result.seconds = object[QStringLiteral("seconds")].toDouble();
    if (const QJsonValue made = object[QStringLiteral("made")]; made.isObject())
        result.made = madeFrom(made.toObject());
    return result;
}

Message BookResult::write(const LibraryLayout& to) const {
    QJsonObject object{{QStringLiteral("id"), id},
                       {QStringLiteral("pdf"), pdf},
                       {QStringLiteral("facts"), facts.asJson()},
                       {QStringLiteral("state"), nameOf(state)},
                       {QStringLiteral("exitCode"), exitCode},
                       {QStringLiteral("inputs"), QString::fromLatin1(inputs)},
                       {QStringLiteral("run"), run},
                       {QStringLiteral("host"), host},
                       {QStringLiteral("seconds"), seconds}};
    if (!reason.isEmpty())
        object[QStringLiteral("reason")] = reason;
    if (made)
        object[QStringLiteral("made")] = ::asJson(*made);
    const QString file = to.result(id);
    Message cause;
    QDir().mkpath(QFileInfo(file).path());
    return Files::writeAtomically(file, QJsonDocument(object).toJson(), &cause)
               ? Message()
               : Message::about(file, cause);
}

QStringList BookResult::ids(const LibraryLayout& library) {
    QStringList ids;
    for (const auto& [id, file] : filesIn(library.results()))
        ids << id;
    return ids;
}

void BookResult::forEach(const LibraryLayout& library,
                         const std::function<void(const BookResult&)>& visit) {
    forEachIn(library.results(), visit);
}

void BookResult::forEachIn(const QString& folder,
                           const std::function<void(const BookResult&)>& visit) {
    for (const auto& [id, file] : filesIn(folder)) {
        const auto result = read(file);
        if (result && result->id == id)
            visit(*result);
    }
}
