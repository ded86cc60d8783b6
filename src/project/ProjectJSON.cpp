#include "project/ProjectJSON.h"

#include "base/PlatformException.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace {

constexpr qsizetype mostDocuments = 10'000;
constexpr qsizetype mostPages = 100'000;
constexpr qsizetype mostValues = 10'000;
constexpr int bestQuality = 100;

constexpr char allPages[] = "all";
constexpr char typedPages[] = "typed";
constexpr std::array kinds{std::pair{Project::Kind::html, "html"},
                           std::pair{Project::Kind::app, "app"},
                           std::pair{Project::Kind::web, "web"}};
constexpr std::array spreads{std::pair{Spreads::automatic, "auto"},
                             std::pair{Spreads::split, "split"}, std::pair{Spreads::keep, "keep"}};

[[noreturn]] void fail(const Message& cause) {
    throw PlatformException(ErrorKind::project, cause);
}

// where is a path in the file, such as "documents[2].path".
[[noreturn]] void failAt(const QString& where) {
    fail(Message::translate("Project", "is damaged at “%1”").arg(where));
}

// Values of an object, each with a default for one that is missing. A value of another type is an
// error.
class Reader {
public:
    Reader(const QJsonValue& value, QString path) : iPath(std::move(path)) {
        if (!value.isObject() && !value.isUndefined())
            failAt(iPath);
        iObject = value.toObject();
    }

    QString text(const char* key, const QString& missing = QStringLiteral("")) const {
        const QJsonValue value = valueOf(key);
        if (!value.isString() && !value.isUndefined())
            failAt(at(key));
        return value.toString(missing);
    }
    bool flag(const char* key) const {
        const QJsonValue value = valueOf(key);
        if (!value.isBool() && !value.isUndefined())
            failAt(at(key));
        return value.toBool();
    }
    qint64 number(const char* key, qint64 least, qint64 most, qint64 missing) const {
        const QJsonValue value = valueOf(key);
        if (value.isUndefined())
            return missing;
        const qint64 number = value.toInteger(least - 1);
        if (number < least || number > most)
            failAt(at(key));
        return number;
    }
    template <class Names>
    auto choice(const char* key, const Names& names, decltype(names[0].first) missing) const {
        const QString name = text(key, {});
        if (name.isNull())
            return missing;
        const auto found = std::find_if(names.begin(), names.end(), [&](const auto& choice) {
            return QLatin1String(choice.second) == name;
        });
        if (found == names.end())
            failAt(at(key));
        return found->first;
    }
    Reader object(const char* key) const { return {valueOf(key), at(key)}; }
    std::vector<Reader> list(const char* key, qsizetype most) const {
        const QJsonValue value = valueOf(key);
        const QJsonArray array = value.toArray();
        if ((!value.isArray() && !value.isUndefined()) || array.size() > most)
            failAt(at(key));
        std::vector<Reader> readers;
        for (qsizetype i = 0; i < array.size(); ++i)
            readers.emplace_back(array[i], QStringLiteral("%1[%2]").arg(at(key)).arg(i));
        return readers;
    }
    bool has(const char* key) const { return !valueOf(key).isUndefined(); }
    QString at(const char* key) const {
        return iPath.isEmpty() ? QLatin1String(key) : iPath + u'.' + QLatin1String(key);
    }

private:
    QJsonValue valueOf(const char* key) const { return iObject.value(QLatin1String(key)); }

    QString iPath;
    QJsonObject iObject;
};

template <class Names, class Choice>
QString nameOf(const Names& names, Choice choice) {
    return QLatin1String(std::find_if(names.begin(), names.end(), [&](const auto& entry) {
                             return entry.first == choice;
                         })->second);
}

QJsonObject asJson(const Project::File& file) {
    return {{QStringLiteral("path"), file.path},
            {QStringLiteral("relative"), file.relative},
            {QStringLiteral("size"), file.size},
            {QStringLiteral("sha256"), QString::fromLatin1(file.digest)}};
}

Project::File fileOf(const Reader& from) {
    Project::File file;
    file.path = from.text("path");
    if (!file.path.startsWith(u'/') || file.path.contains(QChar::Null))
        failAt(from.at("path"));
    file.relative = from.text("relative");
    if (file.relative.startsWith(u'/') || file.relative.contains(QChar::Null))
        failAt(from.at("relative"));
    constexpr qint64 mostBytes = qint64{1} << 50;
    file.size = from.number("size", -1, mostBytes, -1);
    file.digest = from.text("sha256").toLatin1();
    return file;
}

QJsonArray asJson(const std::vector<MergePlan::Page>& pages) {
    QJsonArray array;
    for (const MergePlan::Page& page : pages)
        array.append(QJsonObject{{QStringLiteral("document"), page.source},
                                 {QStringLiteral("index"), page.index},
                                 {QStringLiteral("rotation"), page.rotation}});
    return array;
}

MergePlan::Page pageOf(const Reader& from, std::size_t documents) {
    constexpr int quarter = 90;
    constexpr int mostTurns = 360;
    MergePlan::Page page;
    page.source = int(from.number("document", -1, qint64(documents) - 1, -1));
    page.index = int(from.number("index", -1, mostPages, -1));
    page.rotation = int(from.number("rotation", -mostTurns, mostTurns, 0));
    if (page.rotation % quarter != 0)
        failAt(from.at("rotation"));
    return page;
}

QJsonArray asJson(const std::vector<Project::Value>& values) {
    QJsonArray array;
    for (const Project::Value& value : values) {
        QJsonObject object{{QStringLiteral("key"), value.key}};
        if (value.isFile)
            object[QStringLiteral("file")] = asJson(value.file);
        else
            object[QStringLiteral("value")] = value.text;
        array.append(object);
    }
    return array;
}

Project::Value valueOf(const Reader& from) {
    Project::Value value;
    value.key = from.text("key");
    value.isFile = from.has("file");
    if (value.isFile)
        value.file = fileOf(from.object("file"));
    value.text = value.isFile ? value.file.path : from.text("value");
    if (value.key.isEmpty())
        failAt(from.at("key"));
    return value;
}

QJsonObject asJson(const Project::Import& import) {
    return {{QStringLiteral("pages"), QLatin1String(import.isRangeTyped ? typedPages : allPages)},
            {QStringLiteral("range"), import.range},
            {QStringLiteral("quality"), import.quality},
            {QStringLiteral("spreads"), nameOf(spreads, import.spreads)},
            {QStringLiteral("links"), import.links},
            {QStringLiteral("bookmarks"), import.bookmarks}};
}

Project::Import importOf(const Reader& from) {
    constexpr std::array ranges{std::pair{false, allPages}, std::pair{true, typedPages}};
    Project::Import import;
    import.isRangeTyped = from.choice("pages", ranges, false);
    import.range = from.text("range");
    import.quality = int(from.number("quality", 0, bestQuality, bestQuality));
    import.spreads = from.choice("spreads", spreads, Spreads::automatic);
    import.links = from.flag("links");
    import.bookmarks = from.flag("bookmarks");
    return import;
}

QJsonObject asJson(const Project::Publish& publish) {
    return {{QStringLiteral("folder"), publish.folder},
            {QStringLiteral("name"), publish.name},
            {QStringLiteral("title"), publish.title},
            {QStringLiteral("kind"), nameOf(kinds, publish.kind)},
            {QStringLiteral("singleFile"), publish.singleFile},
            {QStringLiteral("url"), publish.url},
            {QStringLiteral("previewPages"), publish.previewPages}};
}

Project::Publish publishOf(const Reader& from) {
    Project::Publish publish;
    publish.folder = from.text("folder");
    publish.name = from.text("name");
    publish.title = from.text("title");
    publish.kind = from.choice("kind", kinds, Project::Kind::web);
    publish.singleFile = from.flag("singleFile");
    publish.url = from.text("url");
    publish.previewPages = from.text("previewPages");
    return publish;
}

// Whoever made it, a file that states a greater version may mean other things by the same keys.
void checkVersion(const Reader& from) {
    const qint64 version = from.number("format", 1, std::numeric_limits<int>::max(), 0);
    if (version == 0)
        failAt(from.at("format"));
    if (version > ProjectJSON::formatVersion)
        fail(Message::translate("Project", "was saved by a newer version of Folvero (format %1; "
                                           "this version reads format %2)")
                 .arg(QString::number(version), QString::number(ProjectJSON::formatVersion)));
}

} // namespace

QByteArray ProjectJSON::written(const Project& project) {
    QJsonArray documents;
    for (const Project::File& document : project.documents)
        documents.append(asJson(document));
    QJsonObject object{
        {QStringLiteral("format"), formatVersion},
        {QStringLiteral("documents"), documents},
        {QStringLiteral("pages"), asJson(project.pages)},
        {QStringLiteral("import"), asJson(project.import)},
        {QStringLiteral("template"), project.templateName},
        {QStringLiteral("style"), project.styleName},
        {QStringLiteral("values"), asJson(project.values)},
        {QStringLiteral("publish"), asJson(project.publish)},
    };
    if (project.holdsStyle)
        object[QStringLiteral("holdsStyle")] = true;
    if (!project.recoveryOf.isNull())
        object[QStringLiteral("recoveryOf")] = project.recoveryOf;
    return QJsonDocument(object).toJson();
}

Project ProjectJSON::read(const QByteArray& text) {
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject())
        fail(Message::translate("Project", "is damaged"));
    const Reader from(document.object(), {});
    checkVersion(from);
    Project project;
    for (const Reader& file : from.list("documents", mostDocuments))
        project.documents.push_back(fileOf(file));
    for (const Reader& page : from.list("pages", mostPages))
        project.pages.push_back(pageOf(page, project.documents.size()));
    project.import = importOf(from.object("import"));
    project.templateName = from.text("template", project.templateName);
    project.styleName = from.text("style");
    project.holdsStyle = from.flag("holdsStyle");
    for (const Reader& value : from.list("values", mostValues))
        project.values.push_back(valueOf(value));
    project.publish = publishOf(from.object("publish"));
    project.recoveryOf = from.text("recoveryOf", {});
    return project;
}
