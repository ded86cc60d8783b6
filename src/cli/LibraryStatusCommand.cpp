#include "cli/LibraryStatusCommand.h"

#include "console/CommandError.h"
#include "console/Terminal.h"
#include "library/LibraryLayout.h"
#include "library/LibraryStatus.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace {

ExitCode codeOf(const LibraryStatus& status) {
    const bool isUnfinished = !status.tryAgain.empty() || !status.missing.isEmpty() ||
                              !status.openShards.isEmpty() || status.hasChangedList;
    return isUnfinished                                          ? ExitCode::tryAgain
           : !status.failed.empty() || status.badLineCount() > 0 ? ExitCode::failed
                                                                 : ExitCode::incomplete;
}

QString hintFor(ExitCode code) {
    return code == ExitCode::tryAgain
               ? QStringLiteral("not all is done: run the same command once more")
               : QStringLiteral("not all is done");
}

} // namespace

void runLibraryStatus(const QString& folder, bool asJson) {
    const LibraryLayout library(folder);
    if (!QFileInfo::exists(library.at(LibraryLayout::state)))
        throw CommandError(QStringLiteral("%1: there is no library in it").arg(library.folder()));
    const auto status = LibraryStatus::of(library);
    if (asJson) {
        Terminal::print(QString::fromUtf8(QJsonDocument(status.asJson()).toJson()).trimmed());
    } else {
        for (const QString& line : status.lines())
            Terminal::print(line);
        Terminal::print(status.summary());
    }
    Terminal::checkOutput();
    if (!status.isDone())
        throw CommandError(hintFor(codeOf(status)), codeOf(status));
}
