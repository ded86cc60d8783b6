#include "drawing/SpareWorkers.h"

#include "base/Log.h"
#include "base/PlatformException.h"
#include "pdf/PDFReader.h"
#include "system/Bundle.h"
#include "system/Processors.h"

#include <QFile>
#include <algorithm>

int usualWorkerCount() {
    constexpr int most = 16;
    static const int count = std::min(Processors::available(), most);
    return count;
}

SpareWorkers::SpareWorkers(int count) {
    // A short document needs no more, and for a long one it makes no difference when the others
    // start.
    constexpr int most = 4;
    const std::string program = QFile::encodeName(Bundle::pageWorkerPath()).toStdString();
    try {
        while (int(iProcesses.size()) < std::min(count, most)) {
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

void OpenedPDF::open(const QString& path, std::function<bool()> stopped) {
    if (document)
        return;
    workers = std::make_shared<SpareWorkers>(jobs);
    document = PDFReader::open(path, std::move(stopped), password);
}
