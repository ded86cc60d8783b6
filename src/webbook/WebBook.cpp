#include "webbook/WebBook.h"

#include "annotations/FlashOutlinePDF.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/BookLayout.h"
#include "output/BookXML.h"
#include "pdf/PDFDocument.h"
#include "system/Files.h"

#include <QFileInfo>
#include <algorithm>

namespace {

constexpr Log webBookLog("FolveroOutputWeb");

std::vector<PageRun> runsOfPositions(const std::vector<int>& numbers,
                                     const std::vector<PageRun>& openPages) {
    std::vector<PageRun> runs;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const int position = int(i) + 1;
        if (!isWithin(openPages, numbers[i]))
            continue;
        if (!runs.empty() && runs.back().last == position - 1)
            runs.back().last = position;
        else
            runs.push_back({position, position});
    }
    return runs;
}

void readInformation(const PDFDocument& document, WebBookMetadata& metadata) {
    BookFacts facts;
    facts.title = document.information("Title").trimmed();
    facts.author = document.information("Author").trimmed();
    facts.subject = document.information("Subject").trimmed();
    // Anything else must not get into the page.
    if (const QString tag = document.language().trimmed(); BookFacts::isLanguage(tag))
        facts.language = tag;
    metadata.facts = metadata.facts.completedBy(facts);
    metadata.keywords = document.information("Keywords").trimmed();
}

void readViewing(const PDFDocument& document, WebBookMetadata& metadata) {
    const PDFViewing viewing = document.viewing();
    metadata.allowsText = viewing.allowsText;
    if (viewing.pageMode == u"UseOutlines")
        metadata.panel = QStringLiteral("contents");
    else if (viewing.pageMode == u"UseThumbs")
        metadata.panel = QStringLiteral("thumbs");
    const int start = viewing.openPage ? metadata.positionOf(*viewing.openPage + 1) : 0;
    metadata.start = metadata.isOpen(start) ? start : 0;
}

void readLabels(const PDFDocument& document, WebBookMetadata& metadata) {
    const auto labels = document.pageLabels();
    if (labels.empty())
        return;
    for (const int number : metadata.numbers)
        metadata.labels << (number <= int(labels.size()) ? labels[std::size_t(number) - 1]
                                                         : QString());
}

} // namespace

void WebBook::complete(const std::optional<std::vector<PageRun>>& openPages) {
    for (const WebPage& page : pages)
        metadata.numbers.push_back(page.number);
    if (openPages)
        metadata.open = runsOfPositions(metadata.numbers, *openPages);
    for (const WebPage& page : pages) {
        const bool hasLarge = isOpen(page) && !page.large.isNull() && !isDrawn(page);
        metadata.large << (hasLarge ? largeKind(page) : QString());
    }
    if (content.document)
        readDocument(content.document);
    if (!metadata.facts.subject.isEmpty())
        texts.setHTMLDescription(metadata.facts.subject.toHtmlEscaped());
    if (!metadata.keywords.isEmpty())
        texts.setHTMLKeywords(metadata.keywords.toHtmlEscaped());
}

void WebBook::readDocument(const std::shared_ptr<PDFDocument>& document) {
    metadata.allowsText = false; // unless that can be read
    try {
        readInformation(*document, metadata);
        readViewing(*document, metadata);
        if (!content.outline) {
            const auto ofDocument = std::make_shared<FlashOutlinePDF>();
            ofDocument->loadOutlineFromPDF(document);
            content.outline = ofDocument;
        }
        readLabels(*document, metadata);
    } catch (const PlatformException& failure) {
        webBookLog.warn(failure.reason());
    }
}

QString WebBook::htmlName() const {
    return Files::lastPathComponent(htmlFile);
}

bool WebBook::isOpen(const WebPage& page) const {
    return metadata.isOpen(metadata.positionOf(page.number));
}

void WebBook::keepOnePicture() {
    for (WebPage& page : pages) {
        page.thumbnail = QString();
        // What is in the text of a script takes the same share more bytes in both forms.
        const bool isSmaller = Files::pathExtension(page.large) == u"vectors" &&
                               QFileInfo(page.large).size() < QFileInfo(page.picture).size();
        if (isSmaller)
            page.picture = page.large;
        else
            page.large = QString();
    }
}

bool WebBook::isDrawn(const WebPage& page) {
    return !page.large.isNull() && page.picture == page.large;
}

FlashPageSource::Pages WebBook::pictures() const {
    FlashPageSource::Pages pictures;
    for (const WebPage& page : pages) {
        if (!isOpen(page) || isDrawn(page))
            continue;
        auto picture = std::make_shared<FlashPage>();
        picture->setPageIndex(page.number);
        picture->setPageFilePath(page.picture);
        pictures.push_back(std::move(picture));
    }
    return pictures;
}

QString WebBook::largeKind(const WebPage& page) {
    const QString extension = Files::pathExtension(page.large);
    return extension == u"vectors" ? QStringLiteral("js") : extension;
}

QString WebBook::picturePath(const WebPage& page) {
    return isDrawn(page) ? BookLayout::largePage(page.number, largeKind(page))
                         : BookLayout::page(page.number, Files::pathExtension(page.picture));
}

QString WebBook::thumbnailPath(const WebPage& page) {
    return page.thumbnail.isNull() ? picturePath(page) : BookLayout::thumbnail(page.number);
}

std::unique_ptr<pugi::xml_document> WebBook::configuration(std::size_t count) const {
    std::vector<BookXML::PageURLs> urls;
    for (std::size_t i = 0; i < std::min(count, pages.size()); ++i) {
        urls.push_back({BookLayout::inFiles(picturePath(pages[i])),
                        BookLayout::inFiles(thumbnailPath(pages[i]))});
    }
    return BookXML::make(flashTemplate.get(), urls, content.pageSize, download);
}

const WebPage* WebBook::firstPage() const {
    const auto first = std::find_if(pages.begin(), pages.end(),
                                    [this](const WebPage& page) { return isOpen(page); });
    return first == pages.end() ? nullptr : &*first;
}
