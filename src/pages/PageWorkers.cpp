#include "pages/PageWorkers.h"

#include "pages/WebPageFiles.h"
#include "platform/Bundle.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/PDFLimits.h"
#include "platform/PlatformException.h"

#include <QFile>
#include <algorithm>
#include <poll.h>
#include <thread>
#include <utility>

namespace {

// How often a waiting import looks at the stop flag.
constexpr int pollMilliseconds = 20;

// Made pages wait on disk, not in memory; the bound keeps a stopped import from having drawn far
// more than was ever asked for.
constexpr std::size_t maxPagesAhead = 64;

// A worker gives a page up by itself; one that does not even do that is ended.
constexpr auto defaultTimeout = PDFLimits::maxPageTime + std::chrono::seconds(10);

// A document that ends so many workers in a row before they are ready will end them all.
constexpr int maxFailedStarts = 20;

// Answers are short.
constexpr qsizetype maxLine = qsizetype{1} << 20;

constexpr std::size_t maxWorkers = 16;

Message endedReason() {
    return Message::translate("PageFailure", "the program that draws pages ended at this page");
}

const Log& workersLog() {
    static const Log log("PageWorkers");
    return log;
}

// Workers speak English. They give one of our own reasons, or a file's path and the system's words.
Message reasonFrom(const QByteArray& words) {
    const qsizetype colon = words.lastIndexOf(": ");
    if (colon < 0)
        return Message::translate("PageFailure", words);
    return Message(QStringLiteral("%1: %2"))
        .arg(QString::fromUtf8(words.left(colon)),
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
      iTimeout(defaultTimeout) {}

PageWorkers::~PageWorkers() {
    killAll();
}

// All at once, so that the system clears them away side by side.
void PageWorkers::killAll() {
    for (const Worker& worker : iWorkers)
        worker.process->kill();
    iWorkers.clear();
}

// The order is what a worker needs to know before it closes itself off.
std::unique_ptr<ChildProcess> PageWorkers::startProcess() const {
    const QByteArray order = QFile::encodeName(iPDFPath).toBase64() + ' ' +
                             QFile::encodeName(iFolder).toBase64() + ' ' +
                             QByteArray::number(iQuality) + (iForWebBook ? " web" : " pages");
    try {
        auto process = iSpares ? iSpares->take() : nullptr;
        if (!process) {
            process = std::make_unique<ChildProcess>(QFile::encodeName(iProgram).toStdString(),
                                                     std::vector<std::string>{"draw"});
        }
        process->writeLine(order); // if it has ended, that shows when it is read
        return process;
    } catch (const PlatformException& failure) {
        workersLog().warn(failure.reason());
        return nullptr;
    }
}

bool PageWorkers::start() {
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t count = std::min({cores, maxWorkers, iPageCount});
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
        if (iStop || (iStopped && iStopped())) {
            killAll();
            return PageResult{Message::translate("PageFailure", "drawing it was stopped"), {}};
        }
        if (iWorkers.empty()) {
            if (!iCanRun)
                return std::nullopt;
            return PageResult{iOpenError.isNull() ? endedReason() : iOpenError, {}};
        }
        collect();
    }
}

// Keeps one page waiting at the worker behind the one that it draws, so that it never waits for us.
// Near the end each page goes to whoever is free.
void PageWorkers::feed(Worker& worker) {
    const std::size_t depth = iWaiting.size() > 2 * iWorkers.size() ? 2 : 1;
    while (!iWaiting.empty() && worker.pages.size() < depth &&
           (iResults.size() < maxPagesAhead || iWaiting.front() <= iAwaited)) {
        if (worker.pages.empty())
            worker.since = std::chrono::steady_clock::now();
        worker.pages.push_back(iWaiting.front());
        iWaiting.pop_front();
        if (!worker.process->writeLine(QByteArray::number(worker.pages.back())))
            return; // its end shows when it is read
    }
}

void PageWorkers::feedAll() {
    for (Worker& worker : iWorkers)
        feed(worker);
}

// Waits a moment for answers and takes those that came.
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
            replace(worker, endedReason());
        return;
    }
    while (const auto line = worker.process->takeLine())
        readAnswer(worker, *line);
    feed(worker);
}

// "here", then "ready", or "fail REASON" when the document can't be opened.
void PageWorkers::readStartupLine(Worker& worker, const QByteArray& line) {
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

// An answer is "ok DRAW ENCODE WRITE" in seconds, "fail REASON", or, when its files can't be
// written, "full REASON" or "unwritable REASON", for the first page asked for. A full disk may have
// room later.
void PageWorkers::readAnswer(Worker& worker, const QByteArray& line) {
    if (!worker.ready) {
        readStartupLine(worker, line);
        return;
    }
    if (worker.pages.empty())
        return;
    PageResult result;
    const auto fields = line.split(' ');
    if (fields[0] == "ok" && fields.size() == 4) {
        result.timing = {fields[1].toDouble(), fields[2].toDouble(), fields[3].toDouble()};
    } else {
        const Message reason = reasonFrom(line.mid(fields[0].size() + 1));
        result.error = fields[0] == "full" ? reason.temporary() : reason;
        result.isUnwritten = fields[0] == "full" || fields[0] == "unwritable";
    }
    iResults[worker.pages.front()] = std::move(result);
    worker.pages.pop_front();
    worker.since = std::chrono::steady_clock::now();
}

// One that hangs while it opens the document has no page to blame; few more are waited for.
void PageWorkers::timeOut(Worker& worker) {
    worker.process->kill();
    if (!worker.ready)
        iFailedStarts += maxFailedStarts / 3;
    replace(worker, Message::translate("PageFailure", "drawing it took too long"));
}

// A new process takes over from one that is of no more use. Without a reason it draws the same
// page.
void PageWorkers::replace(Worker& worker, const Message& reason) {
    if (!worker.ready) {
        replaceUnstarted(worker);
        return;
    }
    if (!reason.isNull())
        failPage(worker, reason);
    requeuePages(worker);
    worker = newWorker(startProcess());
}

// A page is not to blame for a worker that somebody killed; when it happens again it may be.
bool PageWorkers::shouldRetry(Worker& worker) {
    return worker.ready && !worker.pages.empty() && worker.process->wasKilled() &&
           iRetriedPages.insert(worker.pages.front()).second;
}

// The page that it was drawing is to blame.
void PageWorkers::failPage(Worker& worker, const Message& reason) {
    if (worker.pages.empty())
        return;
    const int page = worker.pages.front();
    worker.pages.pop_front();
    worker.process->kill();
    removeFilesOf(page);
    iResults[page].error = reason;
    workersLog().warn(QStringLiteral("page %1: %2").arg(page).arg(reason.english()));
}

// No page is to blame for a process that did not even get ready. One that has been heard of may
// have opened the document, so how it ended is no reason to draw without it.
void PageWorkers::replaceUnstarted(Worker& worker) {
    requeuePages(worker);
    iCanRun = iCanRun && (worker.sandboxed || !worker.process->couldNotRun());
    const bool again = iCanRun && iOpenError.isNull() && ++iFailedStarts < maxFailedStarts;
    worker = newWorker(again ? startProcess() : nullptr);
}

// A page counts as drawn or as given up, never half.
void PageWorkers::removeFilesOf(int page) const {
    const WebPageFiles files(iFolder, page);
    for (const QString& file : iForWebBook ? files.all() : QStringList(files.pageFile)) {
        QFile::remove(file);
        QFile::remove(Files::temporaryPath(file));
    }
}

void PageWorkers::requeuePages(Worker& worker) {
    iWaiting.insert(iWaiting.begin(), worker.pages.begin(), worker.pages.end());
    std::sort(iWaiting.begin(), iWaiting.end());
    worker.pages.clear();
}
