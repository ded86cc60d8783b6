#include "drawing/SpareWorkers.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "pdf/PDFReader.h"
#include "system/Bundle.h"

#include <QFile>
#include <algorithm>
#include <thread>

SpareWorkers::SpareWorkers() {
    // A short document needs no more, and for a long one it makes no difference when the others
    // start.
    constexpr unsigned maxWorkers = 4;
    const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1U, maxWorkers);
    const std::string program = QFile::encodeName(Bundle::pageWorkerPath()).toStdString();
    try {
        while (iProcesses.size() < count) {
            iProcesses.push_back(
                std::make_unique<ChildProcess>(program, std::vector<std::string>{"draw"}));
        }
    } catch (const PlatformException& failure) {
        Log("SpareWorkers").warn(failure.reason());
    }
}

std::unique_ptr<ChildProcess> SpareWorkers::take() {
    if (iProcesses.empty())
        return nullptr;
    auto process = std::move(iProcesses.back());
    iProcesses.pop_back();
    return process;
}

OpenedPDF OpenedPDF::open(const QString& path, std::function<bool()> stopped) {
    auto workers = std::make_shared<SpareWorkers>();
    return {PDFReader::open(path, std::move(stopped)), std::move(workers)};
}
