#pragma once

#include "pdf/PDFDocument.h"
#include "system/ChildProcess.h"

#include <functional>
#include <memory>
#include <vector>

// How many page workers draw at the same time unless the user says otherwise: one per processor, up
// to a number.
int usualWorkerCount();

// Page workers started before it is known what they are to draw: starting the program takes about
// as long as drawing a page, and can overlap with opening the document. The destructor ends those
// that were not taken.
class SpareWorkers {
public:
    // Starts that many, but no more than a small number; none where they can't be started.
    explicit SpareWorkers(int count);

    // Takes one of them, or null when none is left. It waits for its first line.
    std::unique_ptr<ChildProcess> take();

private:
    std::vector<std::unique_ptr<ChildProcess>> iProcesses;
};

// A document to be drawn, and workers that were started while it was opened.
struct OpenedPDF {
    std::shared_ptr<PDFDocument> document; // null before open()
    std::shared_ptr<SpareWorkers> workers;
    int jobs = usualWorkerCount(); // how many workers are to draw
    QByteArray password;           // in UTF-8; empty for none

    // Does nothing when it is open. See PDFReader::open().
    void open(const QString& path, std::function<bool()> stopped = {});
};
