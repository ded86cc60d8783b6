#pragma once

#include "base/Message.h"
#include "console/CommandError.h"
#include "output/PublishTransaction.h"

#include <QJsonObject>
#include <QString>
#include <map>

class PublishTiming;
struct PublishOptions;

// A book that was made.
struct MadeBook {
    QString file;            // the file to open
    bool isUpToDate = false; // nothing was made: the book is there
    PublishTransaction::Counts counts;
    int pages = 0;
    // Reasons by page number: pages that are missing from the book, and those with a picture only.
    std::map<int, QString> failedPages;
    std::map<int, QString> degradedPages;
    QJsonObject metadata; // web books only: what is known, by name
    QString cover;        // path in the book of the first page's thumbnail; empty for none
    std::map<int, QString> damagedPages; // that lack what is damaged in the document
    Message reportError; // why there is no report; null when there is one, or none is wanted

    // Of the pages, whatever came of the report.
    ExitCode code() const {
        return failedPages.empty() && damagedPages.empty() ? ExitCode::ok : ExitCode::incomplete;
    }
};

// The file of --report: what came of a run, as JSON for programs. Without that option nothing is
// written. docs/command-line.md describes the format.
class PublishReport {
public:
    // Throws CommandError when the file exists and is not such a report, which must not be lost.
    explicit PublishReport(const PublishOptions& options);

    // Takes over what a project says beside the command line.
    void describe(const PublishOptions& options);

    // Replace the report of an earlier run. Return why that failed, or a null message.
    Message writeMade(const MadeBook& book, const PublishTiming& timing);
    Message writeFailed(const CommandError& error, const PublishTiming& timing);

private:
    Message write(const char* result, ExitCode code, const PublishTiming& timing);

    QString iPath;
    QJsonObject iContent;
};
