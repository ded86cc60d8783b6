#include "output/WebScript.h"

#include "output/BookLayout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <string_view>

namespace {

// These never occur in JSON outside of strings.
QByteArray harmless(QByteArray json) {
    return json.replace('<', "\\u003c")
        .replace("\xe2\x80\xa8", "\\u2028")
        .replace("\xe2\x80\xa9", "\\u2029");
}

constexpr std::string_view end = ");\n";

} // namespace

QByteArray WebScript::json(const QJsonArray& array) {
    return harmless(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QByteArray WebScript::json(const QJsonObject& object) {
    return harmless(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

QByteArray WebScript::start(const QString& path) {
    return "folveroData(\"" + BookLayout::dataName(path).toUtf8() + "\", ";
}

QByteArray WebScript::file(const QString& path, const QByteArray& json) {
    return start(path) + json + end.data();
}

QByteArray WebScript::jsonIn(const QString& path, const QByteArray& script) {
    return script.mid(start(path).size()).chopped(qsizetype(end.size()));
}
