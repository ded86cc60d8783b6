#pragma once

#include "output/FolveroOutput.h"
#include "pdf/AnnotationBudget.h"
#include "webbook/WebBookMetadata.h"
#include "webbook/WebPages.h"

#include <optional>

// Writes a web book: a book folder whose pages take fewer bytes, with clickable links, contents,
// search, selectable text, a larger picture of each page, thumbnails, and the whole text as a
// separate page.
class FolveroOutputWeb : public FolveroOutput {
public:
    using FolveroOutput::FolveroOutput;

    // Plain text, shown wherever the book is named; by default the document's title.
    void setTitle(const QString& title) { iTitle = title; }
    QString title() const { return iTitle; }

    // Puts everything into the HTML page, to be sent by mail or opened from disk. There is no page
    // of plain text then.
    void setSingleFile(bool isSingleFile) { iIsSingleFile = isSingleFile; }
    // The maximum size of a single-file book in bytes; mail and browsers do not accept more.
    void setSingleFileLimit(qint64 bytes) { iSingleFileLimit = bytes; }

    // Includes only these pages, by their numbers in the PDF; of the others the book contains
    // neither pictures nor text. None includes all.
    void setOpenPages(std::optional<std::vector<PageRun>> pages) { iOpenPages = std::move(pages); }

    void ouputTheBook() override;
    QStringList foreignFiles() const override;

    QString getThumbPageURL(const FlashPage& page) const override;

    // Pages of the last run that lack some of their files, and why.
    const std::vector<std::pair<int, Message>>& degradedPages() const { return iDegradedPages; }
    // False when the folder contains another site's service worker or manifest, which is kept:
    // readers can't save the book for offline use then, nor can they with a single-file book.
    bool worksOffline() const { return iMetadata.offline; }
    // Bytes that the last run wrote for pages (pictures, larger ones, thumbnails, text), and those
    // of the same pages in a classic book.
    qint64 pageBytes() const { return iPageBytes; }
    qint64 classicPageBytes() const { return iClassicPageBytes; }

protected:
    void publish() override;
    void finishHTMLPage(const QString& file) override;

private:
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
    void copyPageFile(const QString& source, const QString& path);
    void writeScript(const QString& path, const QByteArray& json);
    void packIntoPage();
    QString playerPart(const QString& path) const;
    std::shared_ptr<FlashPageSource> webPageSource() const;

    std::unique_ptr<WebPages> iWebPages; // of the current run
    QString iTitle;
    bool iIsSingleFile = false;
    qint64 iSingleFileLimit = 100'000'000;
    std::optional<std::vector<PageRun>> iOpenPages;
    WebBookMetadata iMetadata;
    std::vector<std::pair<int, Message>> iDegradedPages;
    qint64 iPageBytes = 0;
    qint64 iClassicPageBytes = 0;
};
