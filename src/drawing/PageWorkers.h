#pragma once

#include "base/Message.h"
#include "drawing/PageMaker.h"
#include "drawing/SpareWorkers.h"
#include "drawing/WorkFolderLimit.h"
#include "system/ChildProcess.h"

#include <QString>
#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

// The result of one page.
struct PageResult {
    Message error; // why it could not be made; null when it was. There may be a page file even so
    MadePage made;
    // Not the page's fault: the work folder can't be written, or no worker gets ready.
    bool endsImport = false;
};

// Draws pages of a PDF in worker processes, ahead of the loop that collects them. Each
// worker has its own open file, so that a page that crashes MuPDF costs that page
// only. Pages must be collected in ascending order. For one thread.
class PageWorkers {
public:
    // Pages (one-based, ascending) are written as WebPageFiles to the folder. stop is polled while
    // waiting and cancels everything. No process is started before start().
    PageWorkers(QString pdfPath, QString folder, int quality, std::vector<int> pages,
                const std::atomic<bool>& stop);
    ~PageWorkers();

    // For tests: the worker to start instead of the one that is installed beside the running
    // program.
    void setProgram(const QString& path) { iProgram = path; }

    // Which files a page gets; page files by default.
    void setFilesOf(FilesOfPages filesOf) { iFilesOf = std::move(filesOf); }

    // Of the PDF, in UTF-8; none by default.
    void setPassword(const QByteArray& password) { iPassword = password; }

    // How many processes draw; usualWorkerCount() by default.
    void setJobs(int jobs) { iJobs = jobs; }

    // What a page shows of the document; by default all of its page of that number.
    void setCutOf(std::function<PageCut(int page)> cutOf) { iCutOf = std::move(cutOf); }

    // Workers that are already running, to be used first; none by default.
    void setSpares(std::shared_ptr<SpareWorkers> spares) { iSpares = std::move(spares); }

    // How long a worker may take for one page before it is killed.
    void setTimeout(std::chrono::milliseconds timeout) { iTimeout = timeout; }

    // Starts the processes. False when none could be started.
    bool start();

    // Waits for one of the constructor's pages. After a stop the result is an error. Returns
    // nothing when workers can't run on this system: the caller then has to draw.
    std::optional<PageResult> waitFor(int page);

    std::size_t workerCount() const { return iWorkers.size(); }

private:
    struct Worker {
        std::unique_ptr<ChildProcess> process;
        bool sandboxed = false; // its sandbox is in force and it is opening the document
        bool ready = false;     // the document is open
        std::deque<int> pages;  // requested; the first one is being drawn
        std::chrono::steady_clock::time_point since;
        PageDamage damage; // of the first page
    };

    static Worker newWorker(std::unique_ptr<ChildProcess> process) {
        return {std::move(process), false, false, {}, {}, {}};
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
    std::ptrdiff_t runningCount() const;
    void requeuePages(Worker& worker);
    void removeFilesOf(int page) const;
    void killAll();

    QString iProgram;
    std::shared_ptr<SpareWorkers> iSpares;
    QString iPDFPath;
    QByteArray iPassword;
    QString iFolder;
    int iQuality;
    FilesOfPages iFilesOf = classicFiles;
    std::function<PageCut(int page)> iCutOf = [](int page) { return PageCut(page - 1); };
    std::deque<int> iWaiting; // not yet sent to a worker, ascending
    int iAwaited = 0;         // the page being waited for
    const std::atomic<bool>& iStop;
    std::size_t iPageCount;
    int iJobs = usualWorkerCount();
    std::chrono::milliseconds iTimeout;
    int iFailedStarts = 0; // consecutive workers that ended before they were ready
    WorkFolderLimit iFolderLimit;
    bool iCanRun = true;        // false when workers can't run on this system
    bool iHasSandboxed = false; // a worker has entered its sandbox
    Message iOpenError;         // why a worker could not open the document
    std::vector<Worker> iWorkers;
    std::map<int, PageResult> iResults; // done, not yet collected
    std::map<int, int> iKills;          // of workers, by the page that they were drawing
};
