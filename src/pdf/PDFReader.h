#pragma once

#include "pdf/MergePlan.h"
#include "pdf/PDFDocument.h"
#include "pdf/PDFLimits.h"
#include "system/ChildProcess.h"

#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// A PDF that a separate, sandboxed process reads: a file that crashes MuPDF or makes it hang ends
// that process, not this one.
//
// Queries throw PlatformException: readerEnded, readerTimeout, readStopped, readerMalformedAnswer,
// or the kind that the process reports. The next query starts a new process, until three have
// crashed or timed out.
class PDFReader final : public PDFDocument {
public:
    // Opens a PDF. Where no such process can be started on this system, the file is read in this
    // one. stopped is polled while waiting and cancels a query; it may be empty. Throws as
    // DrawablePDF does.
    static std::shared_ptr<PDFDocument>
    open(const QString& path, std::function<bool()> stopped = {}, const QByteArray& password = {});

    // Writes the merged document to a new file, in a process that may read nothing but the plan's
    // sources. The file's folder must hold nothing else of value. Throws as open() does; the reason
    // names the source, and a file that was begun is left. A process that can't be started is
    // temporary.
    static void merge(const MergePlan& plan, const QString& to, std::function<bool()> stopped = {});

    // Does not read yet; start() must come first.
    PDFReader(const QString& path, std::function<bool()> stopped, const QByteArray& password = {});

    // For tests: the program to start instead of the one that is installed beside the running
    // program, and the time limit for an answer.
    void setProgram(const QString& path) { iProgram = path; }
    void setTimeout(std::chrono::milliseconds timeout) { iTimeout = timeout; }

    // Opens the file. False when the process can't be started on this system.
    bool start();

    int pageCount() const override { return iPageCount; }
    std::vector<QSizeF> pageSizes() const override;
    PDFPage page(int index) const override;
    std::vector<PDFAnnotation> annotations(int index) const override;
    QString information(const char* key) const override;
    PDFViewing viewing() const override;
    QString language() const override;
    std::vector<QString> pageLabels() const override;
    std::vector<PDFOutlineNode> outline() const override;
    void stopReader() const override { iProcess.reset(); }

private:
    // Of the process: its arguments, and the line that it begins with.
    struct Service {
        std::vector<std::string> arguments;
        QByteArray firstLine;
        QStringList sources; // what its errors may be about
    };

    QByteArray ask(const QByteArray& question) const;
    QByteArray askOnce(const QByteArray& question) const;
    QByteArray awaitAnswer() const;
    [[noreturn]] void reportEnd() const;

    Service iService;
    QString iProgram;
    std::function<bool()> iStopped;
    std::chrono::milliseconds iTimeout = PDFLimits::maxPageTime;
    int iPageCount = 0;
    // The process comes and goes while the document stays the same.
    mutable std::unique_ptr<ChildProcess> iProcess;
    mutable bool iIsSandboxed = false; // it has reported that its sandbox is in force
    mutable int iEnded = 0;            // processes that crashed or timed out so far
};
