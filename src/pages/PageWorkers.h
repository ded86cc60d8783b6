#pragma once

#include "pages/PageImage.h"
#include "platform/ChildProcess.h"

#include <QString>
#include <atomic>
#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <vector>

// What became of one page.
struct PageResult {
    QString error; // null when the page file was written
    PageTiming timing;
};

// Draws pages of one PDF ahead of the walk that collects them, on processes of our own: one per
// core, each with the file open by itself, so that a page that crashes the engine costs that page
// only. For one thread.
class PageWorkers {
public:
    // Pages (one-based) are made in that order, as "N.jpg" in the folder. stop, watched while
    // waiting, ends everything. No process is started before the first start().
    PageWorkers(QString pdfPath, QString folder, int quality, std::vector<int> pages,
                const std::atomic<bool>& stop);
    ~PageWorkers();

    // Starts the processes. False when none could be started.
    bool start();

    // Waits for a page that was handed to the constructor. After a stop the result is an error.
    PageResult waitFor(int page);

    std::size_t workerCount() const { return iWorkers.size(); }

private:
    struct Worker {
        std::unique_ptr<ChildProcess> process;
        std::deque<int> pages; // asked for; the first one is being drawn
        std::chrono::steady_clock::time_point since;
    };

    std::unique_ptr<ChildProcess> startProcess() const;
    void feed(Worker& worker);
    void feedAll();
    void collect();
    void readAnswers(Worker& worker);
    void takeAnswer(Worker& worker, const QByteArray& line);
    void replace(Worker& worker, const QString& reason);
    void killAll();
    void endAll(const QString& reason);

    QString iPDFPath;
    QString iFolder;
    int iQuality;
    std::deque<int> iWaiting; // not yet handed to a worker
    const std::atomic<bool>& iStop;
    std::size_t iPageCount;
    std::vector<Worker> iWorkers;
    std::map<int, PageResult> iResults; // made, not yet asked for
};
