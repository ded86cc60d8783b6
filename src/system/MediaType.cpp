#include "system/MediaType.h"

#include "system/Files.h"

#include <QMap>

QByteArray MediaType::ofFile(const QString& name) {
    static const QMap<QString, QByteArray> types{
        {QStringLiteral("html"), "text/html"},
        {QStringLiteral("css"), "text/css"},
        {QStringLiteral("js"), "text/javascript"},
        {QStringLiteral("json"), "application/json"},
        {QStringLiteral("webmanifest"), "application/manifest+json"},
        {QStringLiteral("xml"), "application/xml"},
        {QStringLiteral("txt"), "text/plain"},
        {QStringLiteral("pdf"), "application/pdf"},
        {QStringLiteral("svg"), "image/svg+xml"},
        {QStringLiteral("jpg"), "image/jpeg"},
        {QStringLiteral("jpeg"), "image/jpeg"},
        {QStringLiteral("png"), "image/png"},
        {QStringLiteral("gif"), "image/gif"},
        {QStringLiteral("webp"), "image/webp"},
        {QStringLiteral("ico"), "image/vnd.microsoft.icon"},
        {QStringLiteral("mp3"), "audio/mpeg"},
        {QStringLiteral("wav"), "audio/wav"},
        {QStringLiteral("ogg"), "audio/ogg"},
        {QStringLiteral("oga"), "audio/ogg"},
        {QStringLiteral("m4a"), "audio/mp4"},
        {QStringLiteral("aac"), "audio/aac"},
        {QStringLiteral("flac"), "audio/flac"},
        {QStringLiteral("swf"), "application/x-shockwave-flash"},
    };
    return types.value(Files::pathExtension(name).toLower(), "application/octet-stream");
}

QByteArray MediaType::withCharacterSet(const QString& name) {
    const QByteArray type = ofFile(name);
    const bool isText = type.startsWith("text/") || type.endsWith("json") || type.endsWith("xml");
    return isText ? type + "; charset=utf-8" : type;
}
