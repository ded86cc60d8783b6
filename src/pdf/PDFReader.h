#pragma once

#include "pdf/PDFDocument.h"
#include "pdf/PDFLimits.h"
#include "system/ChildProcess.h"

#include <chrono>
#include <functional>
#include <memory>

// Reads a PDF in a separate, sandboxed process: a file that crashes MuPDF or makes it hang ends
// that process, not this one. For one thread at a time.
//
// Queries throw PlatformException: readerEnded, readerTimeout, readStopped, readerMalformedAnswer,
// or the kind that the process reports. The next query starts a new process, until three have
// crashed or timed out.
class PDFReader {
public:
    // Does not read yet. stopped is polled while waiting and cancels a query; it may be empty.
    PDFReader(QString path, std::function<bool()> stopped);
    ~PDFReader();

    // For tests: the program to start instead of the one that is installed beside the running
    // program, and the time limit for an answer.
    void setProgram(const QString& path) { iProgram = path; }
    void setTimeout(std::chrono::milliseconds timeout) { iTimeout = timeout; }

    // Opens the file. False when the process can't be started on this system.
    bool open();

    int pageCount() const { return iPageCount; }
    // index is zero-based and must exist.
    PDFPageBoxes boxes(int index);
    std::vector<PDFAnnotation> annotations(int index);
    std::vector<PDFOutlineNode> outline();
    QString information(const char* key);
    QString language();
    std::vector<QString> pageLabels();

    // Ends the process until the next query. A document may stay open for hours.
    void stop();

private:
    QByteArray ask(const QByteArray& question);
    QByteArray askOnce(const QByteArray& question);
    QByteArray awaitAnswer();
    [[noreturn]] void reportEnd();

    QString iProgram;
    QString iPath;
    std::function<bool()> iStopped;
    std::chrono::milliseconds iTimeout = PDFLimits::maxPageTime;
    std::unique_ptr<ChildProcess> iProcess;
    bool iIsSandboxed = false; // it has reported that its sandbox is in force
    int iPageCount = 0;
    int iEnded = 0; // processes that crashed or timed out so far
};
