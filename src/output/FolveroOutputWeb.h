#pragma once

#include "output/FolveroOutput.h"
#include "output/WebBookMetadata.h"
#include "pages/WebPages.h"
#include "platform/AnnotationBudget.h"

#include <functional>
#include <optional>

// Writes a web book: the folder of a book whose pages take fewer bytes, and what a reader of today
// expects beyond: links that can be clicked, contents, search, text that can be selected, a larger
// picture for each page, thumbnails, and the whole text as a page of its own.
class FolveroOutputWeb : public FolveroOutput {
public:
    using FolveroOutput::FolveroOutput;

    // Plain text, shown wherever the book tells of itself; by default that of the document.
    void setTitle(const QString& title) { iTitle = title; }
    QString title() const { return iTitle; }

    // Everything in the HTML page and no other file, to be sent by mail or opened from a disk.
    // There is no plain page of the text then.
    void setSingleFile(bool isSingleFile) { iIsSingleFile = isSingleFile; }
    // Bytes up to which a book is written as one file; mail and browsers take no more.
    void setSingleFileLimit(qint64 bytes) { iSingleFileLimit = bytes; }

    // Opens these pages only, given by their numbers in the PDF. Of the others the book says no
    // more than that they are there: it has neither pictures nor texts of them. None opens all.
    void setOpenPages(std::optional<std::vector<PageRun>> pages) { iOpenPages = std::move(pages); }

    // Called while pages are made, with the number of pages done and that of all.
    void setProgress(std::function<void(int done, int total)> progress) {
        iProgress = std::move(progress);
    }

    void ouputTheBook() override;
    QStringList foreignFiles() const override;

    QString getThumbPageURL(const FlashPage& page) const override;

    // Pages of the last run that have less than they could have, and why.
    const std::vector<std::pair<int, Message>>& degradedPages() const { return iDegradedPages; }
    // False when the folder has a service worker or manifest of somebody else's, which then stays:
    // readers can't keep the book. Nor can they in this way when it is one file.
    bool worksOffline() const { return iMetadata.offline; }
    // Bytes of all that the last run wrote for pages: pictures, larger ones, thumbnails, text; and
    // those of the same pages in a classic book.
    qint64 pageBytes() const { return iPageBytes; }
    qint64 classicPageBytes() const { return iClassicPageBytes; }

protected:
    void publish() override;
    void finishHTMLPage(const QString& file) override;

private:
    bool makePages();
    void checkDocumentUnchanged() const;
    void readMetadata();
    void describeBook();
    void readDocumentMetadata(const PDFDocument& document);
    QString cover() const;
    void noteOpenPages();
    bool isOpen(int number) const { return iMetadata.isOpen(iMetadata.positionOf(number)); }
    void writeOfflineFiles();
    QByteArray preloads();
    void writePages();
    QString writePage(const WebPage& page, const PDFDocument* document, AnnotationBudget& budget);
    void copyPageFile(const QString& source, const QString& folder, const QString& name);
    void writeScript(const QString& name, const QByteArray& json);
    void packIntoPage();
    QString playerPart(const QString& name, const QString& type, const QString& target) const;
    void copyPlayerPart(const QString& name, const QString& type);
    std::shared_ptr<FlashPageSource> sourceOfWebPages() const;

    std::function<void(int, int)> iProgress = [](int, int) {};
    std::unique_ptr<WebPages> iWebPages; // of the run under way
    QString iTitle;
    bool iIsSingleFile = false;
    qint64 iSingleFileLimit = 100'000'000;
    std::optional<std::vector<PageRun>> iOpenPages;
    WebBookMetadata iMetadata;
    std::vector<std::pair<int, Message>> iDegradedPages;
    qint64 iPageBytes = 0;
    qint64 iClassicPageBytes = 0;
};
