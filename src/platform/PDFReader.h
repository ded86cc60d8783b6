#pragma once

#include "platform/ChildProcess.h"
#include "platform/PDFDocument.h"
#include "platform/PDFLimits.h"

#include <chrono>
#include <functional>
#include <memory>

// Reads a PDF through a process of its own, behind walls: a file that breaks the PDF engine, or
// keeps it busy for ever, ends that process and not this one. For one thread at a time.
//
// Questions throw PlatformException: "PDFReaderEnded", "PDFReaderTimeout", "PDFReadStopped",
// "PDFReaderMalformedAnswer", or what the other side reports by its own name. The next question
// starts a new process, until three have ended.
class PDFReader {
public:
    // Nothing is read yet. stopped, asked while waiting, gives a question up; it may be none.
    PDFReader(QString path, std::function<bool()> stopped);
    ~PDFReader();

    // The program to start instead of the one that is installed beside the running program, and how
    // long it may take for an answer.
    void setProgram(const QString& path) { iProgram = path; }
    void setTimeout(std::chrono::milliseconds timeout) { iTimeout = timeout; }

    // Opens the file. False when there is no such process to be had on this system.
    bool open();

    int pageCount() const { return iPageCount; }
    // Of the page at a zero-based index, which must exist.
    PDFPageBoxes boxes(int index);
    std::vector<PDFAnnotation> annotations(int index);
    std::vector<PDFOutlineNode> outline();
    QString information(const char* key);
    QString language();
    std::vector<QString> pageLabels();

    // Ends the process until the next question. A document may stay open for hours.
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
    bool iIsSandboxed = false; // the process has been heard of
    int iPageCount = 0;
    int iEnded = 0; // processes lost so far
};
