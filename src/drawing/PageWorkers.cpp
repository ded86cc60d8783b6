#include "drawing/PageWorkers.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "pdf/PDFLimits.h"
#include "system/Bundle.h"
#include "system/Files.h"

#include <QFile>
#include <algorithm>
#include <poll.h>
#include <utility>

namespace {

// How often a waiting import checks the stop flag.
constexpr int pollMilliseconds = 20;

// Finished pages are on disk, not in memory; the limit keeps a cancelled import from having drawn
// far more than was needed.
constexpr std::size_t maxPagesAhead = 64;

// A worker has its own time limit per page; one that exceeds even this is killed.
constexpr auto defaultTimeout = PDFLimits::maxPageTime + std::chrono::seconds(10);

// A document that crashes so many workers in a row before they are ready will crash them all.
constexpr int maxFailedStarts = 20;

// Answers are short.
constexpr qsizetype maxLine = qsizetype{1} << 20;

Message crashReason() {
    return Message::translate("PageFailure", "the program that draws pages ended at this page");
}

// Such as when there are no more processes or memory.
Message notStarted() {
    return Message::translate("PageFailure", "the program that draws pages can't be started");
}

constexpr Log workersLog("PageWorkers");

// Workers report in English: one of our own reasons, or a file's path and the system's error text.
Message reasonFrom(const QByteArray& words) {
    const qsizetype colon = words.lastIndexOf(": ");
    if (colon < 0)
        return Message::translate("PageFailure", words);
    return Message::about(QString::fromUtf8(words.left(colon)),
                          Message::translate("SystemError", words.mid(colon + 2)));
}

} // namespace

PageWorkers::PageWorkers(QString pdfPath, QString folder, int quality, std::vector<int> pages,
                         const std::atomic<bool>& stop)
    : iProgram(Bundle::pageWorkerPath()),
      iPDFPath(std::move(pdfPath)),
      iFolder(std::move(folder)),
      iQuality(quality),
      iWaiting(pages.begin(), pages.end()),
      iStop(stop),
      iPageCount(pages.size()),
      iTimeout(defaultTimeout),
      iFolderLimit(iFolder, iPageCount) {}

PageWorkers::~PageWorkers() {
    killAll();
}

// Kills all before waiting for any, so that they exit in parallel.
void PageWorkers::killAll() {
    for (const Worker& worker : iWorkers)
        worker.process->kill();
    iWorkers.clear();
}

// The first line tells the worker everything that it needs before it enters its sandbox.
std::unique_ptr<ChildProcess> PageWorkers::startProcess() const {
    const QByteArray order = QFile::encodeName(iPDFPath).toBase64() + ' ' +
                             QFile::encodeName(iFolder).toBase64() + ' ' +
                             QByteArray::number(iQuality) + ' ' + iPassword.toBase64();
    try {
        auto process = iSpares ? iSpares->take() : nullptr;
        if (!process) {
            process = std::make_unique<ChildProcess>(QFile::encodeName(iProgram).toStdString(),
                                                     std::vector<std::string>{"draw"});
        }
        process->writeLine(order); // a failure shows when reading
        return process;
    } catch (const PlatformException& failure) {
        workersLog.warn(failure.reason());
        return nullptr;
    }
}

bool PageWorkers::start() {
    const std::size_t count = std::min(std::size_t(iJobs), iPageCount);
    for (std::size_t i = 0; i < count; ++i) {
        if (auto process = startProcess())
            iWorkers.push_back(newWorker(std::move(process)));
    }
    feedAll();
    return !iWorkers.empty();
}

std::optional<PageResult> PageWorkers::waitFor(int page) {
    iAwaited = page;
    for (;;) {
        feedAll();
        if (const auto found = iResults.find(page); found != iResults.end()) {
            PageResult result = std::move(found->second);
            iResults.erase(found);
            return result;
        }
        if (iStop) {
            killAll();
            return PageResult{Message::translate("PageFailure", "drawing it was stopped"), {}};
        }
        if (iWorkers.empty()) {
            if (!iCanRun)
                return std::nullopt;
            if (!iHasSandboxed)
                return PageResult{notStarted().temporary(), {}, true};
            return PageResult{iOpenError.isNull() ? crashReason() : iOpenError, {}};
        }
        if (iFolderLimit.isExceeded()) {
            killAll();
            return PageResult{
                Message::translate("PageFailure",
                                   "the program that draws pages wrote more than pages need"),
                {},
                true};
        }
        collect();
    }
}

// Queues one page at the worker behind the one it draws, so that it never waits for us. Near the
// end each page goes to the next free worker.
void PageWorkers::feed(Worker& worker) {
    const std::size_t depth = iWaiting.size() > 2 * iWorkers.size() ? 2 : 1;
    while (!iWaiting.empty() && worker.pages.size() < depth &&
           (iResults.size() < maxPagesAhead || iWaiting.front() <= iAwaited)) {
        if (worker.pages.empty())
            worker.since = std::chrono::steady_clock::now();
        worker.pages.push_back(iWaiting.front());
        iWaiting.pop_front();
        const int page = worker.pages.back();
        if (!worker.process->writeLine(PageOrder{page, iCutOf(page), iFilesOf(page)}.line()))
            return; // a failure shows when reading
    }
}

void PageWorkers::feedAll() {
    for (Worker& worker : iWorkers)
        feed(worker);
}

// Waits briefly for answers and reads those that arrived.
void PageWorkers::collect() {
    std::vector<pollfd> descriptors;
    for (const Worker& worker : iWorkers)
        descriptors.push_back({worker.process->readDescriptor(), POLLIN, 0});
    ::poll(descriptors.data(), descriptors.size(), pollMilliseconds);
    const auto now = std::chrono::steady_clock::now();
    for (std::size_t i = 0; i < iWorkers.size(); ++i) {
        Worker& worker = iWorkers[i];
        if (descriptors[i].revents)
            readAnswers(worker);
        if (worker.process && !worker.pages.empty() && now - worker.since > iTimeout)
            timeOut(worker);
    }
    std::erase_if(iWorkers, [](const Worker& worker) { return !worker.process; });
}

void PageWorkers::readAnswers(Worker& worker) {
    if (!worker.process->readAvailable(maxLine)) {
        if (shouldRetry(worker))
            replace(worker);
        else
            replace(worker, crashReason());
        return;
    }
    while (const auto line = worker.process->takeLine())
        readAnswer(worker, *line);
    feed(worker);
}

// "here" (in its sandbox), then "ready", or "fail REASON" when the document can't be opened.
void PageWorkers::readStartupLine(Worker& worker, const QByteArray& line) {
    iHasSandboxed = true;
    if (!std::exchange(worker.sandboxed, true) && line == "here")
        return;
    if (line != "ready") {
        iOpenError = reasonFrom(line.mid(5));
        return;
    }
    worker.ready = true;
    worker.since = std::chrono::steady_clock::now();
    iFailedStarts = 0;
}

// "damaged WORDS" may come before an answer. An answer is "ok DRAW ENCODE WRITE" in seconds, with a
// reason if files for a web book are missing, "fail REASON", or, when the files can't be written,
// "full REASON" (may succeed later) or "unwritable REASON". It refers to the first requested page.
void PageWorkers::readAnswer(Worker& worker, const QByteArray& line) {
    if (!worker.ready) {
        readStartupLine(worker, line);
        return;
    }
    if (worker.pages.empty())
        return;
    const auto fields = line.split(' ');
    if (fields[0] == "damaged") {
        worker.damage = PageDamage::fromWords(line);
        return;
    }
    PageResult& result = iResults[worker.pages.front()];
    result.made.damage = std::exchange(worker.damage, {});
    if (fields[0] == "ok" && fields.size() >= 4) {
        result.made.timing = {fields[1].toDouble(), fields[2].toDouble(), fields[3].toDouble()};
        if (fields.size() > 4)
            result.made.degraded = reasonFrom(fields.mid(4).join(' '));
    } else if (fields[0] == "full" || fields[0] == "unwritable") {
        const Message reason = reasonFrom(line.mid(fields[0].size() + 1));
        result.error = fields[0] == "full" ? reason.temporary() : reason;
        result.endsImport = true;
    } else {
        result.error = fields[0] == "fail" ? reasonFrom(line.mid(5))
                                           : Message::translate("PageFailure", "it was not drawn");
    }
    worker.pages.pop_front();
    worker.since = std::chrono::steady_clock::now();
}

// A worker that hangs while opening the document is not a page's fault; few more are tried.
void PageWorkers::timeOut(Worker& worker) {
    worker.process->kill();
    if (!worker.ready)
        iFailedStarts += maxFailedStarts / 3;
    replace(worker, Message::translate("PageFailure", "drawing it took too long"));
}

// Starts a new process in place of one that is unusable. Without a reason its current page is drawn
// again.
void PageWorkers::replace(Worker& worker, const Message& reason) {
    if (!worker.ready) {
        replaceUnstarted(worker);
        return;
    }
    if (!reason.isNull())
        failPage(worker, reason);
    // Killed twice at a page: there may be no memory for so many workers.
    const bool isOneTooMany =
        reason.isNull() && iKills[worker.pages.front()] > 1 && runningCount() > 1;
    requeuePages(worker);
    worker = newWorker(isOneTooMany ? nullptr : startProcess());
}

std::ptrdiff_t PageWorkers::runningCount() const {
    return std::count_if(iWorkers.begin(), iWorkers.end(),
                         [](const Worker& worker) { return worker.process != nullptr; });
}

// A worker killed from outside is not its page's fault, unless it happens again and again.
bool PageWorkers::shouldRetry(Worker& worker) {
    constexpr int maxKills = 3;
    return worker.ready && !worker.pages.empty() && worker.process->wasKilled() &&
           ++iKills[worker.pages.front()] < maxKills;
}

// The page that the worker was drawing counts as the cause.
void PageWorkers::failPage(Worker& worker, const Message& reason) {
    if (worker.pages.empty())
        return;
    const int page = worker.pages.front();
    worker.pages.pop_front();
    worker.process->kill();
    removeFilesOf(page);
    iResults[page].error = reason;
    workersLog.warn(QStringLiteral("page %1: %2").arg(page).arg(reason.english()));
}

// A process that did not become ready is not a page's fault. One in its sandbox may have opened the
// document, so how it ended is no reason to draw without workers.
void PageWorkers::replaceUnstarted(Worker& worker) {
    requeuePages(worker);
    iCanRun = iCanRun && (worker.sandboxed || !worker.process->couldNotRun());
    const bool again = iCanRun && iOpenError.isNull() && ++iFailedStarts < maxFailedStarts;
    worker = newWorker(again ? startProcess() : nullptr);
}

// Leaves no partial files of a failed page. A picture that is there before the others is complete.
void PageWorkers::removeFilesOf(int page) const {
    const WebPageFiles files(iFolder, page);
    const PageFiles wanted = iFilesOf(page);
    const QStringList partial = wanted == PageFiles::web    ? files.others()
                                : wanted == PageFiles::text ? QStringList(files.text)
                                                            : QStringList(files.pageFile);
    for (const QString& file : partial)
        QFile::remove(file);
    const QStringList pictures{files.pageFile, files.picture};
    for (const QString& file : files.others() + pictures)
        QFile::remove(Files::temporaryPath(file));
}

void PageWorkers::requeuePages(Worker& worker) {
    iWaiting.insert(iWaiting.begin(), worker.pages.begin(), worker.pages.end());
    std::sort(iWaiting.begin(), iWaiting.end());
    worker.pages.clear();
}
