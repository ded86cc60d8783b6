#include "cli/PublishReport.h"

#include "cli/PublishOptions.h"
#include "cli/PublishTiming.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "system/NameAliases.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

const QString programKey = QStringLiteral("program");
const QString programName = QStringLiteral("folvero");

// Whether the path can be written without losing anything else than a report.
bool isFree(const QString& path) {
    const QFileInfo there(path);
    if (!there.exists())
        return true;
    if (!there.isFile())
        return false;
    const QJsonObject content = QJsonDocument::fromJson(Files::contents(path)).object();
    return there.size() == 0 || content[programKey] == programName;
}

QString notFree(const QString& path) {
    return QStringLiteral("%1: is not a report of an earlier run, and would be overwritten")
        .arg(path);
}

QString absolute(const QString& path) {
    return NameAliases::shown(path.isEmpty() ? path
                                             : QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
}

QString nameOf(PublishOptions::Type type) {
    using Type = PublishOptions::Type;
    return type == Type::app     ? QStringLiteral("app")
           : type == Type::scorm ? QStringLiteral("scorm")
           : type == Type::web   ? QStringLiteral("web")
                                 : QStringLiteral("html");
}

QJsonArray asJson(const std::map<int, QString>& pages) {
    QJsonArray list;
    for (const auto& [page, reason] : pages) {
        list.append(
            QJsonObject{{QStringLiteral("page"), page}, {QStringLiteral("reason"), reason}});
    }
    return list;
}

// The transaction has not seen the shell of an application, whose bundle is one folder of ours.
PublishTransaction::Counts countsOf(const MadeBook& book) {
    PublishTransaction::Counts counts = book.counts;
    if (!QFileInfo(book.file).isDir())
        return counts;
    counts = {};
    QDirIterator files(book.file, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        ++counts.written;
        counts.bytes += files.fileInfo().size();
    }
    return counts;
}

QJsonObject asJson(const PublishTransaction::Counts& counts) {
    return {{QStringLiteral("total"), counts.written + counts.unchanged},
            {QStringLiteral("bytes"), counts.bytes},
            {QStringLiteral("written"), counts.written},
            {QStringLiteral("unchanged"), counts.unchanged},
            {QStringLiteral("removed"), counts.removed}};
}

} // namespace

PublishReport::PublishReport(const PublishOptions& options) : iPath(options.reportFile) {
    if (iPath.isNull())
        return;
    if (!isFree(iPath))
        throw CommandError(QStringLiteral("--report: %1").arg(notFree(iPath)), ExitCode::usage);
    describe(options);
}

void PublishReport::describe(const PublishOptions& options) {
    iContent = {{programKey, programName},
                {QStringLiteral("version"), Bundle::version()},
                {QStringLiteral("document"), absolute(options.pdf)},
                {QStringLiteral("folder"), absolute(options.outputFolder)},
                {QStringLiteral("type"), nameOf(options.type)}};
}

Message PublishReport::writeMade(const MadeBook& book, const PublishTiming& timing) {
    iContent[QStringLiteral("file")] = NameAliases::shown(book.file);
    if (book.isUpToDate)
        return write("upToDate", ExitCode::ok, timing);
    iContent[QStringLiteral("pages")] = book.pages;
    iContent[QStringLiteral("failedPages")] = asJson(book.failedPages);
    iContent[QStringLiteral("damagedPages")] = asJson(book.damagedPages);
    iContent[QStringLiteral("degradedPages")] = asJson(book.degradedPages);
    iContent[QStringLiteral("files")] = asJson(countsOf(book));
    if (!book.metadata.isEmpty())
        iContent[QStringLiteral("metadata")] = book.metadata;
    if (!book.cover.isEmpty())
        iContent[QStringLiteral("cover")] = book.cover;
    return write("made", book.code(), timing);
}

Message PublishReport::writeFailed(const CommandError& error, const PublishTiming& timing) {
    iContent[QStringLiteral("reason")] = NameAliases::shown(error.message());
    return write("failed", error.code(), timing);
}

Message PublishReport::write(const char* result, ExitCode code, const PublishTiming& timing) {
    if (iPath.isNull())
        return {};
    iContent[QStringLiteral("result")] = QString::fromLatin1(result);
    iContent[QStringLiteral("exitCode")] = int(code);
    iContent[QStringLiteral("timing")] = timing.seconds();
    // The book may have a file of that name.
    if (!isFree(iPath))
        return notFree(iPath);
    Message cause;
    return NameAliases::write(iPath, QJsonDocument(iContent).toJson(), &cause)
               ? Message()
               : Message::about(iPath, cause);
}
