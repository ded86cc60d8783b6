#include "webbook/WebBookSteps.h"

#include "annotations/FlashOutline.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/BookSteps.h"
#include "output/PlayerFile.h"
#include "output/WebScript.h"
#include "pdf/AnnotationBudget.h"
#include "pdf/PDFDocument.h"
#include "pdf/PDFSerialization.h"
#include "system/Files.h"
#include "template/FlashTemplate.h"
#include "util/Base91.h"
#include "webbook/PlainTextPage.h"
#include "webbook/ReadingFiles.h"
#include "webbook/SharedPlayer.h"
#include "webbook/SingleFilePage.h"
#include "webbook/StartList.h"
#include "webbook/WebBook.h"
#include "webbook/WebPageTemplate.h"
#include "webbook/WebPageText.h"
#include "webbook/reading/BookReading.h"
#include "webbook/reading/Figures.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

using Copy = PublishTransaction::Copy;
using Phase = PublishTransaction::Phase;

namespace {

constexpr Log webStepsLog("FolveroOutputWeb");

// Writes the files of pages and counts their bytes.
class PageWriter {
public:
    PageWriter(PublishTarget& to, const WebBook& book, WebBookReport& report)
        : iTo(to), iBook(book), iReport(report) {}

    // Returns the page's text.
    QString write(const WebPage& page);
    // What the texts consist of.
    std::vector<ReadingBlock> reading();
    // Adds to the files of pages what their lines belong to, which is known in the end only.
    void addBlocks(const std::vector<ReadingBlock>& blocks);
    void writeScript(const QString& path, const QByteArray& json);

private:
    void copy(const QString& source, const QString& path);
    void copyLarge(const WebPage& page);
    PDFPageContent contentOf(const WebPage& page);
    // Returns the lines in reading order.
    std::vector<PDFTextLine> writeText(const WebPage& page, const PDFPageContent& content);

    PublishTarget& iTo;
    const WebBook& iBook;
    WebBookReport& iReport;
    AnnotationBudget iBudget;
    BookReading iReading;
};

void addEntries(const FlashOutline::Items& items, int level, const WebBookMetadata& metadata,
                std::vector<Headings::Entry>& entries) {
    for (const auto& item : items) {
        if (const int position = metadata.positionOf(item->pageIndex()); position > 0)
            entries.push_back({item->caption(), position, level});
        addEntries(item->childItems(), level + 1, metadata, entries);
    }
}

void PageWriter::copy(const QString& source, const QString& path) {
    if (source.isNull())
        return;
    iReport.pageBytes += QFileInfo(source).size();
    iTo.transaction.copy(source, iTo.layout.at(path), iBook.kindOfCopy);
}

void PageWriter::copyLarge(const WebPage& page) {
    if (page.large.isNull())
        return;
    const QString kind = WebBook::largeKind(page);
    const QString path = BookLayout::largePage(page.number, kind);
    if (kind == u"js")
        writeScript(path, "{\"vectors\":\"" +
                              Base91::encode(PublishTransaction::contents(page.large)) + "\"}");
    else
        copy(page.large, path);
}

void PageWriter::writeScript(const QString& path, const QByteArray& json) {
    const QByteArray script = WebScript::file(path, json);
    iTo.transaction.write(iTo.layout.at(path), script);
    iReport.pageBytes += script.size();
}

QString PageWriter::write(const WebPage& page) {
    if (!WebBook::isDrawn(page))
        iReport.pageBytes += QFileInfo(page.picture).size();
    copy(page.thumbnail, BookLayout::thumbnail(page.number));
    copyLarge(page);
    return WebPageText::plain(writeText(page, iBook.hasText ? contentOf(page) : PDFPageContent()));
}

std::vector<ReadingBlock> PageWriter::reading() {
    std::vector<Headings::Entry> entries;
    if (iBook.content.outline)
        addEntries(iBook.content.outline->items(), 1, iBook.metadata, entries);
    return iReading.finish(entries);
}

void PageWriter::addBlocks(const std::vector<ReadingBlock>& blocks) {
    for (const auto& [position, ofPage] : ReadingFiles::blocksOfPages(blocks)) {
        iTo.checkCancelled();
        const QString path = BookLayout::text(iBook.pages[std::size_t(position) - 1].number);
        const QByteArray script =
            PublishTransaction::contents(iTo.transaction.stagedFile(iTo.layout.at(path)));
        iReport.pageBytes -= script.size();
        writeScript(path, WebScript::jsonIn(path, script).chopped(1) +
                              ",\"blocks\":" + WebScript::json(ofPage) + '}');
    }
}

// The file was written by a process that has read an untrusted document.
PDFPageContent PageWriter::contentOf(const WebPage& page) {
    if (page.text.isNull())
        return {};
    const QByteArray packed = PublishTransaction::contents(page.text);
    try {
        return PDFSerialization::unpack<PDFPageContent>(packed);
    } catch (const PlatformException& failure) {
        webStepsLog.warn(QStringLiteral("%1: %2").arg(page.text, failure.reason()));
        iReport.degradedPages.emplace_back(
            page.number,
            Message::translate("PageFailure",
                               "the program that draws pages wrote a file that is none of a page"));
        return {};
    }
}

std::vector<PDFTextLine> PageWriter::writeText(const WebPage& page, const PDFPageContent& content) {
    PDFPage source;
    std::vector<PDFAnnotation> annotations;
    if (iBook.content.document && page.number <= iBook.content.document->pageCount()) {
        try {
            source = iBook.content.document->page(page.number - 1);
            if (!iBudget.isSpent())
                annotations = iBook.content.document->annotations(page.number - 1);
            iBudget.spend(annotations);
        } catch (const PlatformException& failure) {
            if (QFileInfo::exists(page.picture)) // otherwise it is a missing page
                iReport.degradedPages.emplace_back(page.number, failure.message());
        }
    }
    const WebBookMetadata& metadata = iBook.metadata;
    const auto links = WebPageText::linksOf(
        source, annotations, [&](int index) { return metadata.positionOf(index + 1); });
    auto ordered = iReading.addPage(metadata.positionOf(page.number), content.text, links,
                                    Figures::of(content, source.display));
    writeScript(BookLayout::text(page.number),
                WebScript::json(WebPageText::asJson(source, ordered, links)));
    return ordered;
}

// Writes the texts for searching, page by page, into files that a reader need not wait for.
class SearchWriter {
public:
    explicit SearchWriter(PageWriter& writer) : iWriter(writer) {}

    void add(const QString& text) {
        constexpr qsizetype mostLetters = 250'000;
        if (iLetters > mostLetters)
            write();
        iTexts.append(text);
        iLetters += text.size();
        iHasText = iHasText || !text.isEmpty();
    }
    // Returns the number of files; 0 for a book without text.
    int finish() {
        write();
        return iHasText ? iParts : 0;
    }

private:
    void write() {
        iWriter.writeScript(BookLayout::searchPart(iParts++), WebScript::json(iTexts));
        iTexts = {};
        iLetters = 0;
    }

    PageWriter& iWriter;
    QJsonArray iTexts;
    qsizetype iLetters = 0;
    int iParts = 0;
    bool iHasText = false;
};

QString textOfPlayerPart(const BookLayout& layout, const QString& path) {
    return QString::fromUtf8(PublishTransaction::contents(PlayerFile::installed(layout, path)));
}

bool isSent(const PublishTarget& to, const WebBook& book, std::size_t index) {
    return index < book.pages.size() && book.isOpen(book.pages[index]) &&
           to.writes(WebBook::picturePath(book.pages[index]));
}

// On slow connections, files discovered only after another has arrived cost a round trip each. The
// first picture is requested before the player.
void addPreload(PagePlaces& places, const PublishTarget& to, const WebBook& book) {
    if (isSent(to, book, 0))
        places.head.prepend(
            QStringLiteral(
                "<link rel=\"preload\" as=\"image\" href=\"%1\" fetchpriority=\"high\">\n")
                .arg(WebBook::picturePath(book.pages[0])));
}

// The next two pages, or those at which the book opens, unless their pictures are so large that
// they would delay the first one. Only the player knows whether the reader begins there.
std::vector<int> nextPages(const PublishTarget& to, const WebBook& book) {
    constexpr qint64 mostBytes = 250'000;
    qint64 bytes = 0;
    std::vector<int> positions;
    const int next = std::max(2, book.metadata.start / 2 * 2);
    for (const int position : {next, next + 1}) {
        const auto index = std::size_t(position) - 1;
        if (!isSent(to, book, index))
            continue;
        bytes += QFileInfo(book.pages[index].picture).size();
        if (bytes <= mostBytes)
            positions.push_back(position);
    }
    return positions;
}

// What web books of both forms put into the page.
PagePlaces placesOf(const WebBook& book) {
    PagePlaces places;
    if (!book.metadata.facts.language.isEmpty())
        places.language = book.metadata.facts.language;
    // The Flash player can't show a web book's pictures.
    places.movie = QString();
    places.head = QString::fromUtf8(book.metadata.headMarkup());
    return places;
}

// What the player opens the book with, so that it need not request the configuration.
void addStartList(PagePlaces& places, const WebBook& book, const TextParts& parts,
                  const std::vector<int>& next) {
    const QByteArray list = StartList::json(book, parts, next);
    if (list.isNull())
        return;
    places.head += QStringLiteral("<script type=\"application/json\" data-file=\"web/start\">") +
                   QString::fromUtf8(list) + QStringLiteral("</script>\n");
}

// Where the page loads the player from.
QString playerAddress(const WebBook& book) {
    return book.player ? QString::fromLatin1(book.player->address()) : BookLayout::files + u'/';
}

QString playerMarkup(const WebBook& book) {
    const QString course =
        book.isCourse
            ? QStringLiteral("<script src=\"%1\"></script>\n").arg(BookLayout::courseScript)
            : QString();
    const QString names =
        book.player ? QStringLiteral(" data-files=\"%1\"").arg(book.player->namesForPage())
                    : QString();
    return course + QStringLiteral("<link rel=\"stylesheet\" href=\"%1%2\">\n"
                                   "<script src=\"%1%3\"%4></script>\n")
                        .arg(playerAddress(book), BookLayout::inFiles(BookLayout::webStyle),
                             BookLayout::inFiles(BookLayout::webScript), names);
}

QString megabytes(qint64 bytes) {
    constexpr double megabyte = 1'000'000;
    // Rounded up: a file just over a limit must not appear to be within it.
    return QString::number(std::ceil(10 * double(bytes) / megabyte) / 10, 'f', 1);
}

// The terminal's text can name the options.
Message tooLarge(qint64 size, qint64 limit) {
    const Message forWindow =
        Message::translate("FolveroOutput",
                           "As one file the book would have %1 MB, and the most is %2 MB. Import "
                           "fewer pages or choose the smallest files, or publish it as a folder")
            .arg(megabytes(size), megabytes(limit));
    const QString forTerminal =
        QStringLiteral("as one file the book would have %1 MB, and the most is %2 MB; take fewer "
                       "pages (--pages) or smaller pictures (--quality 0), or leave out "
                       "--single-file")
            .arg(megabytes(size), megabytes(limit));
    return {forTerminal, forWindow.local()};
}

// What is staged for a book in one file, and parts of the player. A reader sees the first pages
// while the others are still on their way, so these come first, then what can be used with any
// page.
SingleFilePage::Files orderedFiles(const BookLayout& layout, const PublishTransaction& parts,
                                   const WebBook& book) {
    constexpr std::size_t firstPages = 3; // what is seen before and after the first turn
    std::map<QString, QString> staged;
    for (const auto& [target, source] : parts.stagedFiles())
        staged.emplace(QDir(layout.folder()).relativeFilePath(target), source);
    SingleFilePage::Files files;
    const auto take = [&](const QString& path) {
        if (auto file = staged.extract(path))
            files.emplace_back(file.key(), file.mapped());
    };
    const auto takePlayer = [&](const QString& script) {
        files.emplace_back(script, PlayerFile::installed(layout, script));
    };
    const auto takeAll = [&](const QString& folder) {
        std::erase_if(staged, [&](const auto& file) {
            if (!BookLayout::isIn(folder, file.first))
                return false;
            files.emplace_back(file.first, file.second);
            return true;
        });
    };
    for (std::size_t i = 0; i < book.pages.size(); ++i) {
        const WebPage& page = book.pages[i];
        take(WebBook::picturePath(page));
        take(BookLayout::text(page.number));
        if (i == 0) {
            // Their readers see nothing before them.
            for (const QString& language : PlayerFile::languages())
                takePlayer(language);
            takeAll(BookLayout::settingsFiles);
        }
        if (i + 1 != std::min(firstPages, book.pages.size()))
            continue;
        for (const QString& script : BookLayout::laterScripts())
            takePlayer(script);
        takeAll(BookLayout::webData);
    }
    files.insert(files.end(), staged.begin(), staged.end());
    return files;
}

void writeTextPage(PublishTarget& to, const WebBook& book,
                   const std::vector<ReadingBlock>& blocks) {
    if (book.metadata.textPage.isEmpty())
        return;
    const QString path = to.layout.at(book.metadata.textPage);
    const auto picture = [&](int position) {
        const WebPage& page = book.pages[std::size_t(position) - 1];
        const bool isShown = book.isOpen(page) && QFileInfo::exists(page.picture);
        return isShown ? WebBook::picturePath(page) : QString();
    };
    PlainTextPage page(book.metadata, book.htmlName(), to.transaction.stage(path, Phase::page),
                       picture);
    for (const ReadingBlock& block : blocks)
        page.add(block);
    if (const Message error = page.finish(); !error.isNull())
        PublishTransaction::fail(path, error);
}

} // namespace

void WebBookSteps::writePages(PublishTarget& to, const WebBook& book, WebBookReport& report) {
    PageWriter writer(to, book, report);
    SearchWriter search(writer);
    for (const WebPage& page : book.pages) {
        to.checkCancelled();
        const bool isOpen = book.isOpen(page);
        const QString text = isOpen ? writer.write(page) : QString();
        if (WebPageText::isListing(text))
            report.text.listings.push_back(book.metadata.positionOf(page.number));
        search.add(text);
    }
    if (book.content.document) {
        book.content.document->stopReader();
        // The pages may have been drawn long before their texts and links are read.
        BookSteps::checkUnchanged(*book.content.document);
    }
    report.text.search = search.finish();
    const auto blocks = writer.reading();
    writer.addBlocks(blocks);
    report.text.reading = ReadingFiles::write(blocks, [&](int part, const QByteArray& json) {
        writer.writeScript(BookLayout::readingPart(part), json);
    });
    writer.writeScript(BookLayout::metadata, WebScript::json(book.metadata.forPlayer(
                                                 book.content.outline.get(), report.text)));
    writeTextPage(to, book, blocks);
}

void WebBookSteps::writePage(PublishTarget& to, const WebBook& book, const WebBookReport& report) {
    to.checkCancelled();
    if (!BookSteps::isInFolder(to.layout, book.htmlFile))
        return;
    const QString pageTemplate = WebPageTemplate::withReferences(
        WebPageTemplate::of(book.flashTemplate.get()), playerAddress(book));
    PagePlaces places = placesOf(book);
    addPreload(places, to, book);
    addStartList(places, book, report.text, nextPages(to, book));
    places.head += playerMarkup(book);
    const TextTemplate page = book.texts.filled(pageTemplate, places);
    to.transaction.write(book.htmlFile, page.parse().toUtf8(), Phase::page);
}

void WebBookSteps::copyPlayer(PublishTarget& to, const WebBook& book) {
    if (book.player) {
        for (const SharedPlayer::File& file : book.player->files()) {
            if (!file.inBook.isNull())
                to.transaction.remove(to.layout.at(file.inBook));
        }
        return;
    }
    QStringList paths = QStringList{BookLayout::webScript, BookLayout::webStyle} +
                        BookLayout::laterScripts() + PlayerFile::languages();
    if (book.isCourse)
        paths << BookLayout::courseScript;
    for (const QString& path : paths)
        to.transaction.copy(PlayerFile::installed(to.layout, path), to.layout.at(path),
                            Copy::independent);
    for (const auto& [path, text] :
         WebPageTemplate::parts(WebPageTemplate::of(book.flashTemplate.get())))
        to.transaction.write(to.layout.at(path), text.toUtf8());
}

void WebBookSteps::writeSingleFile(PublishTarget& to, const PublishTransaction& parts,
                                   const WebBook& book, const SingleFileOptions& options) {
    to.checkCancelled();
    if (!BookSteps::isInFolder(to.layout, book.htmlFile))
        return;
    PagePlaces places = placesOf(book);
    addStartList(places, book, options.text, {});
    const auto script = [&](const QString& path) {
        return places.allowedScript(u'\n' + textOfPlayerPart(to.layout, path));
    };
    places.head += script(BookLayout::singleScript) + QStringLiteral("<style>\n") +
                   textOfPlayerPart(to.layout, BookLayout::webStyle) +
                   QStringLiteral("</style>\n") + script(BookLayout::webScript);
    places.allowMadeScripts();
    const QString pageTemplate =
        WebPageTemplate::withStartList(WebPageTemplate::of(book.flashTemplate.get()));
    qsizetype end = 0;
    const QString page = book.texts.filled(pageTemplate, places).parse(PagePlaces::endName, end);
    const SingleFilePage single(page.left(end).toUtf8(), orderedFiles(to.layout, parts, book),
                                page.mid(end).toUtf8(), [&to] { to.checkCancelled(); });
    if (single.size() > options.limit)
        PublishTransaction::fail(book.htmlFile, tooLarge(single.size(), options.limit));
    Message error;
    if (!single.write(to.transaction.stage(book.htmlFile, Phase::page), &error))
        PublishTransaction::fail(book.htmlFile, error);
}
