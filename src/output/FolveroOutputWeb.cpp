#include "output/FolveroOutputWeb.h"

#include "annotations/FlashOutlinePDF.h"
#include "output/PlainTextPage.h"
#include "output/WebPageText.h"
#include "output/WebScript.h"
#include "platform/Bundle.h"
#include "platform/Files.h"
#include "platform/Log.h"
#include "platform/PDFDocument.h"
#include "platform/PDFFacts.h"
#include "platform/PlatformException.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QScopeGuard>
#include <algorithm>

using Copy = PublishTransaction::Copy;
using Phase = PublishTransaction::Phase;

namespace {

const Log& logger() {
    static const Log log("FolveroOutputWeb");
    return log;
}

// The file comes from a process that has read a stranger's document.
std::vector<PDFTextLine> textFrom(const QString& path) {
    if (path.isNull())
        return {};
    try {
        return PDFFacts::unpackTextLines(Files::contents(path));
    } catch (const PlatformException& failure) {
        logger().warn(QStringLiteral("%1: %2").arg(path, failure.reason()));
        return {};
    }
}

// Only the name of a language may stand in a page.
QString languageTag(const QString& text) {
    const QString tag = text.trimmed().left(35);
    const bool isTag = std::all_of(tag.begin(), tag.end(), [](QChar letter) {
        return letter.unicode() < 0x80 && (letter.isLetterOrNumber() || letter == u'-');
    });
    return isTag ? tag : QString();
}

} // namespace

void FolveroOutputWeb::ouputTheBook() {
    forgetLastRun();
    iPoorPages.clear();
    iPageBytes = 0;
    iClassicPageBytes = 0;
    if (!iFlashPageSource || !QFileInfo(iSaveToFolder).isDir()) {
        FolveroOutput::ouputTheBook();
        return;
    }
    iWebPages = std::make_unique<WebPages>(*iFlashPageSource);
    const auto end = qScopeGuard([this] { iWebPages.reset(); });
    iWebPages->setCancelled([this] { return isCancelled(); });
    iWebPages->setProgress(iProgress);
    if (!iWebPages->make()) {
        noteCancelled();
        return;
    }
    for (const WebPage& page : iWebPages->pages()) {
        if (!page.failure.isNull())
            iPoorPages.emplace_back(page.number, page.failure);
    }
    const auto source = iFlashPageSource;
    const auto html = iHTMLConfig;
    const auto outline = iFlashOutline;
    const auto restore = qScopeGuard([&] {
        iFlashPageSource = source;
        iHTMLConfig = html;
        iFlashOutline = outline;
    });
    readFacts();
    describeBook();
    iFlashPageSource = sourceOfWebPages();
    FolveroOutput::ouputTheBook();
}

// The page tells what the document says of itself.
void FolveroOutputWeb::describeBook() {
    if (!iHTMLConfig)
        return;
    iHTMLConfig = std::make_shared<HTMLConfigInfo>(*iHTMLConfig);
    if (!iFacts.subject.isEmpty())
        iHTMLConfig->setHTMLDescription(iFacts.subject.toHtmlEscaped());
    if (!iFacts.keywords.isEmpty())
        iHTMLConfig->setHTMLKeywords(iFacts.keywords.toHtmlEscaped());
}

// The same pages with the files that a web book shows. It owns them as the other one does.
std::shared_ptr<FlashPageSource> FolveroOutputWeb::sourceOfWebPages() const {
    class Source : public FlashPageSource {
    public:
        explicit Source(bool owns) : iOwns(owns) {}
        bool ownsPageFiles() const override { return iOwns; }

    private:
        bool iOwns;
    };
    auto source = std::make_shared<Source>(iFlashPageSource->ownsPageFiles());
    FlashPageSource::Pages pages;
    for (const WebPage& page : iWebPages->pages()) {
        auto entry = std::make_shared<FlashPage>();
        entry->setPageIndex(page.number);
        entry->setPageFilePath(page.picture);
        pages.push_back(std::move(entry));
    }
    source->setPages(pages);
    source->setNormalPages(pages);
    return source;
}

void FolveroOutputWeb::readFacts() {
    iFacts = {};
    for (const WebPage& page : iWebPages->pages()) {
        iFacts.numbers.push_back(page.number);
        iFacts.large << (page.large.isNull() ? QString() : QFileInfo(page.large).suffix());
    }
    if (!iWebPages->pages().empty() && !iWebPages->pages().front().thumbnail.isNull())
        iFacts.cover = QStringLiteral("files/thumb/%1.webp").arg(iFacts.numbers.front());
    if (const auto document = iWebPages->document()) {
        try {
            readDocumentFacts(*document);
        } catch (const PlatformException& failure) {
            logger().warn(failure.reason());
        }
    }
    if (!iTitle.isEmpty())
        iFacts.title = iTitle;
}

void FolveroOutputWeb::readDocumentFacts(const PDFDocument& document) {
    iFacts.title = document.information("Title").trimmed();
    iFacts.author = document.information("Author").trimmed();
    iFacts.subject = document.information("Subject").trimmed();
    iFacts.keywords = document.information("Keywords").trimmed();
    iFacts.language = languageTag(document.language());
    if (!iFlashOutline) {
        const auto outline = std::make_shared<FlashOutlinePDF>();
        outline->loadOutlineFromPDF(iWebPages->document());
        iFlashOutline = outline;
    }
    const auto labels = document.pageLabels();
    if (labels.empty())
        return;
    for (const int number : iFacts.numbers)
        iFacts.labels << (number <= int(labels.size()) ? labels[std::size_t(number) - 1]
                                                       : QString());
}

void FolveroOutputWeb::publish() {
    if (iWebPages)
        writePages();
    FolveroOutput::publish();
    // It knows no pictures of this kind.
    transaction().remove(outputSWFName());
    copyPlayerPart(QStringLiteral("web"), QStringLiteral("js"));
    copyPlayerPart(QStringLiteral("web"), QStringLiteral("css"));
}

void FolveroOutputWeb::copyPlayerPart(const QString& name, const QString& type) {
    const QString source = Bundle::pathForResource(name, type, QStringLiteral("AppFiles/Web"));
    const QString target = resourceFolder(iSaveToFolder, name + u'.' + type);
    if (source.isNull())
        PublishTransaction::fail(
            target, Message::translate("FolveroOutput", "the player is not installed"));
    transaction().copy(source, target, Copy::independent);
}

void FolveroOutputWeb::writeScript(const QString& name, const QByteArray& json) {
    const QByteArray script = WebScript::file(name, json);
    transaction().write(resourceFolder(iSaveToFolder, name + QStringLiteral(".js")), script,
                        Phase::contents);
    iPageBytes += script.size();
}

void FolveroOutputWeb::writePages() {
    const auto document = iWebPages->document();
    const QString book = Files::lastPathComponent(outputHTMLFileName());
    PlainTextPage plain(iFacts, book);
    QJsonArray search;
    AnnotationBudget budget;
    for (const WebPage& page : iWebPages->pages()) {
        checkCancelled();
        const QString text = writePage(page, document.get(), budget);
        iFacts.hasText = iFacts.hasText || !text.isEmpty();
        search.append(text);
        plain.addPage(text);
    }
    if (document)
        document->rest();
    writeScript(QStringLiteral("search/text"), WebScript::json(search));
    writeScript(QStringLiteral("web/book"), WebScript::json(iFacts.forPlayer(iFlashOutline.get())));
    transaction().write(Files::join(iSaveToFolder, QStringLiteral("text.html")), plain.html(),
                        Phase::page);
}

// The files of one page beside its picture. Returns its text.
QString FolveroOutputWeb::writePage(const WebPage& page, const PDFDocument* document,
                                    AnnotationBudget& budget) {
    iPageBytes += QFileInfo(page.picture).size();
    iClassicPageBytes += QFileInfo(page.pageFile).size();
    const QString number = QString::number(page.number);
    copyPageFile(page.thumbnail, iThumbPageFolder, number + QStringLiteral(".webp"));
    copyPageFile(page.large, iZoomedPageFolder, number + u'.' + QFileInfo(page.large).suffix());
    const auto lines = textFrom(page.text);
    PDFPageBoxes boxes;
    std::vector<PDFAnnotation> annotations;
    if (document && page.number <= document->pageCount()) {
        try {
            const PDFPage source = document->page(page.number - 1);
            boxes = source.boxes();
            if (!budget.isSpent())
                annotations = source.annotations();
            budget.spend(annotations);
        } catch (const PlatformException& failure) {
            iPoorPages.emplace_back(page.number, failure.message());
        }
    }
    writeScript(QStringLiteral("text/") + number,
                WebScript::json(WebPageText::asJson(boxes, lines, annotations, [this](int index) {
                    return iFacts.positionOf(index + 1);
                })));
    return WebPageText::plain(lines);
}

void FolveroOutputWeb::copyPageFile(const QString& source, const QString& folder,
                                    const QString& name) {
    if (source.isNull())
        return;
    iPageBytes += QFileInfo(source).size();
    transaction().copy(source, Files::join(resourceFolder(iSaveToFolder, folder), name),
                       iFlashPageSource->ownsPageFiles() ? Copy::mayShare : Copy::independent);
}

QString FolveroOutputWeb::getThumbPageURL(const FlashPage& page) const {
    const int position = iWebPages ? iFacts.positionOf(page.pageIndex()) : 0;
    const bool hasOne =
        position > 0 && !iWebPages->pages()[std::size_t(position) - 1].thumbnail.isNull();
    return hasOne ? QStringLiteral("thumb/%1.webp").arg(page.pageIndex()) : getNormalPageURL(page);
}

void FolveroOutputWeb::finishHTMLPage(const QString& file) {
    QByteArray html = Files::contents(file);
    const qsizetype headEnd = html.indexOf("</head>");
    if (headEnd < 0)
        return;
    html.insert(headEnd, iFacts.headMarkup());
    if (!iFacts.language.isEmpty())
        html.replace("<html lang=\"en\">", "<html lang=\"" + iFacts.language.toUtf8() + "\">");
    Message error;
    if (!Files::writeAtomically(file, html, &error))
        PublishTransaction::fail(outputHTMLFileName(), error);
}
