#include "webbook/FolveroOutputWeb.h"

#include "annotations/FlashOutlinePDF.h"
#include "base/Log.h"
#include "base/PlatformException.h"
#include "output/ExistingBook.h"
#include "output/ForeignFiles.h"
#include "output/StagingFolder.h"
#include "output/WebScript.h"
#include "pdf/PDFDocument.h"
#include "pdf/PDFSerialization.h"
#include "system/Bundle.h"
#include "system/Files.h"
#include "util/ColorCategory.h"
#include "webbook/OfflineFiles.h"
#include "webbook/PlainTextPage.h"
#include "webbook/SingleFilePage.h"
#include "webbook/WebPageText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QScopeGuard>
#include <algorithm>
#include <cmath>

using Copy = PublishTransaction::Copy;
using Phase = PublishTransaction::Phase;

namespace {

QByteArray playerMarkup() {
    return "<link rel=\"stylesheet\" href=\"" + BookLayout::webStyle.toUtf8() +
           "\">\n<script src=\"" + BookLayout::webScript.toUtf8() + "\"></script>\n";
}

const Log& logger() {
    static const Log log("FolveroOutputWeb");
    return log;
}

// The file was written by a process that has read an untrusted document.
std::vector<PDFTextLine> textFrom(const QString& path) {
    if (path.isNull())
        return {};
    try {
        return PDFSerialization::unpackTextLines(Files::contents(path));
    } catch (const PlatformException& failure) {
        logger().warn(QStringLiteral("%1: %2").arg(path, failure.reason()));
        return {};
    }
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

// Only a valid language tag may get into the page.
QString languageTag(const QString& text) {
    const QString tag = text.trimmed().left(35);
    const bool isTag = std::all_of(tag.begin(), tag.end(), [](QChar letter) {
        return letter.unicode() < 0x80 && (letter.isLetterOrNumber() || letter == u'-');
    });
    return isTag ? tag : QString();
}

} // namespace

void FolveroOutputWeb::ouputTheBook() {
    resetResults();
    iDegradedPages.clear();
    iPageBytes = 0;
    iClassicPageBytes = 0;
    if (!iBook.pageSource || !QFileInfo(iSaveToFolder).isDir()) {
        FolveroOutput::ouputTheBook();
        return;
    }
    iWebPages = std::make_unique<WebPages>(*iBook.pageSource);
    const auto end = qScopeGuard([this] { iWebPages.reset(); });
    for (const WebPage& page : iWebPages->pages()) {
        if (!page.failure.isNull())
            iDegradedPages.emplace_back(page.number, page.failure);
    }
    const Book book = iBook;
    const auto html = iHTMLConfig;
    const auto restore = qScopeGuard([&] {
        iBook = book;
        iHTMLConfig = html;
    });
    readMetadata();
    describeBook();
    iBook.pageSource = webPageSource();
    FolveroOutput::ouputTheBook();
}

// The pages may have been drawn long before their texts and links are read.
void FolveroOutputWeb::checkDocumentUnchanged() const {
    const auto document = iBook.document;
    if (!document)
        return;
    try {
        document->checkUnchanged();
    } catch (const PlatformException& failure) {
        PublishTransaction::fail(document->path(), failure.message());
    }
}

QStringList FolveroOutputWeb::foreignFiles() const {
    if (iIsSingleFile)
        return ForeignFiles::page(outputHTMLFileName());
    QStringList found = FolveroOutput::foreignFiles();
    const QString text = layout().at(BookLayout::textPage);
    if (ForeignFiles::isThere(text) && !ExistingBook::isTextPage(text))
        found << text;
    if (!ExistingBook::isWebBookIn(iSaveToFolder) && !StagingFolder::hasStale(iSaveToFolder))
        found << ForeignFiles::ofWebBook(layout());
    return found;
}

// Uses the document's own subject and keywords for the page.
void FolveroOutputWeb::describeBook() {
    if (!iHTMLConfig)
        return;
    iHTMLConfig = std::make_shared<HTMLConfigInfo>(*iHTMLConfig);
    if (!iMetadata.subject.isEmpty())
        iHTMLConfig->setHTMLDescription(iMetadata.subject.toHtmlEscaped());
    if (!iMetadata.keywords.isEmpty())
        iHTMLConfig->setHTMLKeywords(iMetadata.keywords.toHtmlEscaped());
}

// The same pages with the web book's files, for the pages that are included. Ownership of the files
// is that of the original source.
std::shared_ptr<FlashPageSource> FolveroOutputWeb::webPageSource() const {
    class Source : public FlashPageSource {
    public:
        explicit Source(bool owns) : iOwns(owns) {}
        bool ownsPageFiles() const override { return iOwns; }

    private:
        bool iOwns;
    };
    auto source = std::make_shared<Source>(iBook.pageSource->ownsPageFiles());
    FlashPageSource::Pages pages;
    FlashPageSource::Pages open;
    for (const WebPage& page : iWebPages->pages()) {
        auto entry = std::make_shared<FlashPage>();
        entry->setPageIndex(page.number);
        entry->setPageFilePath(page.picture);
        if (isOpen(page.number))
            open.push_back(entry);
        pages.push_back(std::move(entry));
    }
    source->setPages(pages);
    source->setNormalPages(open);
    return source;
}

void FolveroOutputWeb::readMetadata() {
    iMetadata = {};
    for (const WebPage& page : iWebPages->pages())
        iMetadata.numbers.push_back(page.number);
    noteOpenPages();
    for (const WebPage& page : iWebPages->pages()) {
        const bool hasLarge = isOpen(page.number) && !page.large.isNull();
        iMetadata.large << (hasLarge ? QFileInfo(page.large).suffix() : QString());
    }
    if (!iIsSingleFile) {
        iMetadata.textPage = BookLayout::textPage;
        iMetadata.cover = cover();
    }
    if (const auto document = iBook.document) {
        try {
            readDocumentMetadata(*document);
        } catch (const PlatformException& failure) {
            logger().warn(failure.reason());
        }
    }
    if (!iTitle.isEmpty())
        iMetadata.title = iTitle;
}

QString FolveroOutputWeb::cover() const {
    const auto& pages = iWebPages->pages();
    const auto first = std::find_if(pages.begin(), pages.end(),
                                    [this](const WebPage& page) { return isOpen(page.number); });
    if (first == pages.end() || first->thumbnail.isNull())
        return {};
    return BookLayout::thumbnail(first->number);
}

void FolveroOutputWeb::noteOpenPages() {
    if (!iOpenPages)
        return;
    std::vector<PageRun> runs;
    for (std::size_t i = 0; i < iMetadata.numbers.size(); ++i) {
        const int position = int(i) + 1;
        if (!isWithin(*iOpenPages, iMetadata.numbers[i]))
            continue;
        if (!runs.empty() && runs.back().last == position - 1)
            runs.back().last = position;
        else
            runs.push_back({position, position});
    }
    iMetadata.open = runs;
}

void FolveroOutputWeb::readDocumentMetadata(const PDFDocument& document) {
    iMetadata.title = document.information("Title").trimmed();
    iMetadata.author = document.information("Author").trimmed();
    iMetadata.subject = document.information("Subject").trimmed();
    iMetadata.keywords = document.information("Keywords").trimmed();
    iMetadata.language = languageTag(document.language());
    if (!iBook.outline) {
        const auto outline = std::make_shared<FlashOutlinePDF>();
        outline->loadOutlineFromPDF(iBook.document);
        iBook.outline = outline;
    }
    const auto labels = document.pageLabels();
    if (labels.empty())
        return;
    for (const int number : iMetadata.numbers)
        iMetadata.labels << (number <= int(labels.size()) ? labels[std::size_t(number) - 1]
                                                          : QString());
}

void FolveroOutputWeb::publish() {
    const QString page = Files::lastPathComponent(outputHTMLFileName());
    if (!iIsSingleFile && page.compare(BookLayout::textPage, Qt::CaseInsensitive) == 0)
        PublishTransaction::fail(
            outputHTMLFileName(),
            Message::translate("FolveroOutput", "The page with the book's text has that name"));
    iMetadata.offline = !iIsSingleFile && OfflineFiles::canWriteTo(layout());
    if (iWebPages)
        writePages();
    FolveroOutput::publish();
    // The Flash player can't show these formats.
    transaction().remove(outputSWFName());
    for (const QString& path : {BookLayout::webScript, BookLayout::webStyle})
        transaction().copy(playerPart(path), layout().at(path), Copy::independent);
    if (iIsSingleFile)
        packIntoPage();
    else if (iMetadata.offline)
        writeOfflineFiles();
}

void FolveroOutputWeb::writeOfflineFiles() {
    const auto colour = [&](const char* key, const char* usual) {
        const QString name = QString::fromLatin1(key);
        const QString value = QString::fromLatin1(usual);
        return MyColorOper::colorFromHexRGB(
            iFlashTemplate ? iFlashTemplate->propertyValueFor(name, value) : value);
    };
    OfflineFiles files;
    files.book = layout();
    files.page = Files::lastPathComponent(outputHTMLFileName());
    files.title = iMetadata.title;
    files.language = iMetadata.language;
    files.cover = iMetadata.cover;
    files.ground = colour("bgBeginColor", "0xC0C0C0");
    files.bar = colour("mainColor", "0xffffff");
    files.script = Files::contents(playerPart(BookLayout::serviceWorker));
    files.player = playerPart(BookLayout::offlineScript);
    files.write(transaction());
}

void FolveroOutputWeb::packIntoPage() {
    checkCancelled();
    const QString page = outputHTMLFileName();
    std::map<QString, QString> files;
    for (const auto& [target, staged] : transaction().takeStagedFiles())
        files.emplace(QDir(iSaveToFolder).relativeFilePath(target), staged);
    const SingleFilePage single(files, Files::lastPathComponent(page));
    if (single.size() > iSingleFileLimit)
        PublishTransaction::fail(page, tooLarge(single.size(), iSingleFileLimit));
    Message error;
    if (!single.write(transaction().stage(page, Phase::page), &error))
        PublishTransaction::fail(page, error);
}

// The installed file of the player that a book has at that path. Fails when it is missing.
QString FolveroOutputWeb::playerPart(const QString& path) const {
    const QString source =
        Bundle::pathForResource(Files::lastPathComponent(path), {}, QStringLiteral("AppFiles/Web"));
    if (source.isNull())
        PublishTransaction::fail(
            layout().at(path), Message::translate("FolveroOutput", "the player is not installed"));
    return source;
}

void FolveroOutputWeb::writeScript(const QString& path, const QByteArray& json) {
    const QByteArray script = WebScript::file(path, json);
    transaction().write(layout().at(path), script, Phase::contents);
    iPageBytes += script.size();
}

void FolveroOutputWeb::writePages() {
    const auto document = iBook.document;
    const QString book = Files::lastPathComponent(outputHTMLFileName());
    PlainTextPage plain(iMetadata, book);
    QJsonArray search;
    AnnotationBudget budget;
    for (const WebPage& page : iWebPages->pages()) {
        checkCancelled();
        if (!isOpen(page.number)) {
            search.append(QString());
            plain.skipPage();
            continue;
        }
        const QString text = writePage(page, document.get(), budget);
        iMetadata.hasText = iMetadata.hasText || !text.isEmpty();
        search.append(text);
        plain.addPage(text);
    }
    if (document)
        document->stopReader();
    checkDocumentUnchanged();
    writeScript(BookLayout::searchText, WebScript::json(search));
    writeScript(BookLayout::metadata, WebScript::json(iMetadata.forPlayer(iBook.outline.get())));
    transaction().write(layout().at(BookLayout::textPage), plain.html(), Phase::page);
}

// Writes the files of a page beside its picture. Returns its text.
QString FolveroOutputWeb::writePage(const WebPage& page, const PDFDocument* document,
                                    AnnotationBudget& budget) {
    iPageBytes += QFileInfo(page.picture).size();
    iClassicPageBytes += QFileInfo(page.pageFile).size();
    copyPageFile(page.thumbnail, BookLayout::thumbnail(page.number));
    copyPageFile(page.large, BookLayout::largePage(page.number, QFileInfo(page.large).suffix()));
    const auto lines = textFrom(page.text);
    PDFPage source;
    std::vector<PDFAnnotation> annotations;
    if (document && page.number <= document->pageCount()) {
        try {
            source = document->page(page.number - 1);
            if (!budget.isSpent())
                annotations = document->annotations(page.number - 1);
            budget.spend(annotations);
        } catch (const PlatformException& failure) {
            if (QFileInfo::exists(page.picture)) // otherwise it is a missing page
                iDegradedPages.emplace_back(page.number, failure.message());
        }
    }
    writeScript(BookLayout::text(page.number),
                WebScript::json(WebPageText::asJson(source, lines, annotations, [this](int index) {
                    return iMetadata.positionOf(index + 1);
                })));
    return WebPageText::plain(lines);
}

void FolveroOutputWeb::copyPageFile(const QString& source, const QString& path) {
    if (source.isNull())
        return;
    iPageBytes += QFileInfo(source).size();
    transaction().copy(source, layout().at(path),
                       iBook.pageSource->ownsPageFiles() ? Copy::mayHardLink : Copy::independent);
}

QString FolveroOutputWeb::getThumbPageURL(const FlashPage& page) const {
    const int position = iWebPages ? iMetadata.positionOf(page.pageIndex()) : 0;
    const bool hasOne =
        position > 0 && !iWebPages->pages()[std::size_t(position) - 1].thumbnail.isNull();
    return hasOne ? BookLayout::inFiles(BookLayout::thumbnail(page.pageIndex()))
                  : getNormalPageURL(page);
}

// On slow connections, files discovered only after another has arrived cost a round trip each.
QByteArray FolveroOutputWeb::preloads() {
    QByteArray links =
        "<link rel=\"preload\" as=\"script\" href=\"" + BookLayout::metadata.toUtf8() + "\">\n";
    const auto pages =
        iBook.pageSource ? iBook.pageSource->normalPages() : FlashPageSource::Pages();
    if (pages.empty() || !pages.front() || iMetadata.positionOf(pages.front()->pageIndex()) != 1)
        return links;
    const QString picture = BookLayout::in({}, getNormalPageURL(*pages.front()));
    if (transaction().writes(layout().at(picture)))
        links += "<link rel=\"preload\" as=\"image\" href=\"" + picture.toUtf8() +
                 "\" fetchpriority=\"high\">\n";
    return links;
}

void FolveroOutputWeb::finishHTMLPage(const QString& file) {
    QByteArray html = Files::contents(file);
    const qsizetype headEnd = html.indexOf("</head>");
    if (headEnd < 0)
        return;
    // Removes the Flash movie, which web books don't have.
    const qsizetype movie = html.indexOf("<object ");
    if (const qsizetype end = html.indexOf("</object>", movie); movie >= 0 && end >= 0)
        html.remove(movie, end + qsizetype(qstrlen("</object>")) - movie);
    html.insert(headEnd, iIsSingleFile ? iMetadata.headMarkup()
                                       : preloads() + iMetadata.headMarkup() + playerMarkup());
    if (!iMetadata.language.isEmpty())
        html.replace("<html lang=\"en\">", "<html lang=\"" + iMetadata.language.toUtf8() + "\">");
    Message error;
    if (!Files::writeAtomically(file, html, &error))
        PublishTransaction::fail(outputHTMLFileName(), error);
}
