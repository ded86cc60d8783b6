#pragma once

#include "pages/PageImage.h"
#include "pages/SpareWorkers.h"
#include "platform/ChildProcess.h"
#include "platform/Message.h"

#include <QString>
#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

// What became of one page.
struct PageResult {
    Message error; // null when the page file was written
    PageTiming timing;
    bool isUnwritten = false; // the work folder can't take it; no fault of the page's
};

// Draws pages of one PDF ahead of the walk that collects them, on processes of our own: one per
// core, each with the file open by itself, so that a page that crashes the engine costs that page
// only. The walk goes through the pages in ascending order. For one thread.
class PageWorkers {
public:
    // Pages (one-based, ascending) are made as "N.jpg" in the folder. stop, watched while waiting,
    // ends everything. No process is started before start().
    PageWorkers(QString pdfPath, QString folder, int quality, std::vector<int> pages,
                const std::atomic<bool>& stop);
    ~PageWorkers();

    // The worker to start instead of the one that is installed beside the running program.
    void setProgram(const QString& path) { iProgram = path; }

    // A further reason to stop, asked while waiting.
    void setStopped(std::function<bool()> stopped) { iStopped = std::move(stopped); }

    // Makes what a web book has of each page beside its page file, instead of that.
    void setForWebBook(bool on) { iForWebBook = on; }

    // Workers that are started already, to be taken first; none by default.
    void setSpares(std::shared_ptr<SpareWorkers> spares) { iSpares = std::move(spares); }

    // How long a worker may be silent over one page before it is ended.
    void setTimeout(std::chrono::milliseconds timeout) { iTimeout = timeout; }

    // Starts the processes. False when none could be started.
    bool start();

    // Waits for a page that was handed to the constructor. After a stop the result is an error.
    // Nothing comes back when the system can't run workers at all: then the caller has to draw.
    std::optional<PageResult> waitFor(int page);

    std::size_t workerCount() const { return iWorkers.size(); }

private:
    struct Worker {
        std::unique_ptr<ChildProcess> process;
        bool sandboxed = false; // it has been heard of, and opens the document
        bool ready = false;     // it has opened the document
        std::deque<int> pages;  // asked for; the first one is being drawn
        std::chrono::steady_clock::time_point since;
    };

    static Worker newWorker(std::unique_ptr<ChildProcess> process) {
        return {std::move(process), false, false, {}, {}};
    }
    std::unique_ptr<ChildProcess> startProcess() const;
    void feed(Worker& worker);
    void feedAll();
    void collect();
    void readAnswers(Worker& worker);
    void readStartupLine(Worker& worker, const QByteArray& line);
    void readAnswer(Worker& worker, const QByteArray& line);
    void timeOut(Worker& worker);
    void replace(Worker& worker, const Message& reason = {});
    bool shouldRetry(Worker& worker);
    void failPage(Worker& worker, const Message& reason);
    void replaceUnstarted(Worker& worker);
    void requeuePages(Worker& worker);
    void removeFilesOf(int page) const;
    void killAll();

    QString iProgram;
    std::shared_ptr<SpareWorkers> iSpares;
    QString iPDFPath;
    QString iFolder;
    int iQuality;
    bool iForWebBook = false;
    std::deque<int> iWaiting; // not yet handed to a worker, ascending
    int iAwaited = 0;         // the page that the walk stands at
    const std::atomic<bool>& iStop;
    std::function<bool()> iStopped;
    std::size_t iPageCount;
    std::chrono::milliseconds iTimeout;
    int iFailedStarts = 0; // workers in a row that ended before they were ready
    bool iCanRun = true;   // false once workers turn out to be unfit for this system
    Message iOpenError;    // why a worker could not open the document
    std::vector<Worker> iWorkers;
    std::map<int, PageResult> iResults; // made, not yet asked for
    std::set<int> iRetriedPages;        // pages whose worker was killed once
};
