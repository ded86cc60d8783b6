#include "BookDrawings.h"
#include "BookStyle.h"
#include "BookText.h"
#include "DrawnPages.h"
#include "Pictures.h"
#include "Samples.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <functional>
#include <memory>

using namespace BookStyle;

namespace {

constexpr double kChapterHeadRoom = 104; // from the text block's top to a chapter's first line

// The example book: its leaves are collected first, so that the contents know every page number,
// and drawn in a second pass.
class SampleBook {
public:
    QByteArray make();

private:
    struct Chapter {
        QString title;
        int page; // zero-based
    };
    using Draw = std::function<void(DrawnPages&)>;

    void addLeaf(const Draw& draw) { iLeaves.push_back(draw); }
    // A leaf of paper with a page number and a caption above what is drawn.
    void addPlate(const QString& caption, const std::function<void(QPainter&)>& draw);
    void addChapter(const QString& title, const QString& html);
    void addAllChapters();
    void addPictures();
    void drawContents(DrawnPages& pages);
    void drawColophon(DrawnPages& pages) const;
    void drawLinks(DrawnPages& pages);
    QByteArray toPage(int page) { return PDFBuilder::toDestination(iPdf.destination(page)); }
    std::vector<PDFBuilder::OutlineEntry> outline();

    PDFBuilder iPdf;
    std::vector<Draw> iLeaves;
    std::vector<Chapter> iChapters;
    int iContentsPage = 0;
    int iLinksPage = 0;
};

void drawPaper(QPainter& painter, int pageNumber) {
    painter.fillRect(kPage, kPaper);
    painter.setPen(kInk);
    painter.setFont(sans(8));
    const bool left = pageNumber % 2 == 0;
    painter.drawText(QRectF(kTextBlock.left(), 552, kTextBlock.width(), 14),
                     left ? Qt::AlignLeft : Qt::AlignRight, QString::number(pageNumber));
    painter.drawText(QRectF(kTextBlock.left(), 552, kTextBlock.width(), 14),
                     left ? Qt::AlignRight : Qt::AlignLeft, BookText::kTitle);
}

std::shared_ptr<QTextDocument> layOut(const QString& html) {
    auto document = std::make_shared<QTextDocument>();
    document->setDocumentMargin(0);
    document->setUseDesignMetrics(true);
    document->setDefaultFont(serif(9.8));
    document->setDefaultStyleSheet(BookText::styleSheet());
    document->setHtml(html);
    QTextCursor start(document.get());
    start.insertBlock();
    start.movePosition(QTextCursor::Start);
    QTextBlockFormat headRoom;
    headRoom.setLineHeight(kChapterHeadRoom, QTextBlockFormat::FixedHeight);
    start.setBlockFormat(headRoom);
    document->setPageSize(kTextBlock.size());
    return document;
}

// Links of the text that lie on a page, with where they are on it.
void addTextLinks(DrawnPages& pages, const QTextDocument& document, int page) {
    const double top = page * kTextBlock.height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QPointF origin = document.documentLayout()->blockBoundingRect(block).topLeft();
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            if (!fragment.charFormat().isAnchor())
                continue;
            const int begin = fragment.position() - block.position();
            const QTextLine line = block.layout()->lineForTextPosition(begin);
            const double left = line.cursorToX(begin);
            const double right = line.cursorToX(begin + fragment.length());
            const QRectF area(origin.x() + left, origin.y() + line.y() - top, right - left,
                              line.height());
            if (area.top() >= 0 && area.bottom() <= kTextBlock.height())
                pages.addLink(area.translated(kTextBlock.topLeft()),
                              PDFBuilder::toURL(fragment.charFormat().anchorHref().toUtf8()));
        }
    }
}

void drawTextPage(QPainter& painter, QTextDocument& document, int page) {
    const QRectF part(0, page * kTextBlock.height(), kTextBlock.width(), kTextBlock.height());
    painter.save();
    painter.translate(kTextBlock.topLeft() - part.topLeft());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette.setColor(QPalette::Text, kInk);
    painter.setClipRect(part);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void SampleBook::addPlate(const QString& caption, const std::function<void(QPainter&)>& draw) {
    const int number = static_cast<int>(iLeaves.size()) + 1;
    addLeaf([=](DrawnPages& pages) {
        QPainter& painter = pages.painter();
        drawPaper(painter, number);
        painter.setFont(serif(15, true));
        painter.setPen(kNavy);
        painter.drawText(QPointF(kTextBlock.left(), 56), caption);
        draw(painter);
    });
}

void SampleBook::addChapter(const QString& title, const QString& html) {
    const int chapter = static_cast<int>(iChapters.size()) + 1;
    const int firstPage = static_cast<int>(iLeaves.size());
    iChapters.push_back({title, firstPage});
    const auto document = layOut(html);
    for (int page = 0; page < document->pageCount(); ++page)
        addLeaf([=](DrawnPages& pages) {
            drawPaper(pages.painter(), firstPage + page + 1);
            if (page == 0)
                BookDrawings::chapterHead(pages.painter(), chapter, title);
            drawTextPage(pages.painter(), *document, page);
            addTextLinks(pages, *document, page);
        });
}

void SampleBook::addPictures() {
    addPlate(QStringLiteral("Four landscapes"), [](QPainter& painter) {
        const QSizeF size(150, 205);
        for (int i = 0; i < 4; ++i) {
            const QRectF frame(QPointF(52 + (i % 2) * 166, 80 + (i / 2) * 221), size);
            painter.drawImage(frame,
                              Pictures::landscapeImage({450, 615}, static_cast<unsigned>(41 + i)));
        }
    });
    addPlate(QStringLiteral("A rosette of hairlines"), [](QPainter& painter) {
        BookDrawings::rosette(painter, QRectF(52, 110, 316, 316));
        BookDrawings::graySteps(painter, QRectF(52, 470, 316, 40));
    });
    addPlate(QStringLiteral("Every hue"), [](QPainter& painter) {
        BookDrawings::colourWheel(painter, QRectF(60, 120, 300, 300));
    });
}

void SampleBook::addAllChapters() {
    addChapter(QStringLiteral("A page that turns"), BookText::turningPage());
    addLeaf([](DrawnPages& pages) {
        pages.painter().drawImage(kPage, Pictures::landscapeImage({1050, 1488}, 12));
    });
    addChapter(QStringLiteral("From document to book"), BookText::documentToBook());
    addPlate(QStringLiteral("The way of a page"), [](QPainter& painter) {
        BookDrawings::fromDocumentToBook(painter, kTextBlock.adjusted(20, 26, -20, 0));
    });
    addChapter(QStringLiteral("Pictures on paper"), BookText::pictures());
    addPictures();
    addChapter(QStringLiteral("Figures and tables"), BookText::figures());
    addPlate(QStringLiteral("Pages on one side of a sheet"), [](QPainter& painter) {
        BookDrawings::foldChart(painter, QRectF(76, 110, 292, 360));
    });
    addPlate(QStringLiteral("Small print"), [](QPainter& painter) {
        BookDrawings::typeSpecimen(painter, kTextBlock.adjusted(0, 8, 0, 0));
    });
}

// One line that is a link over its whole width.
void drawLinkLine(DrawnPages& pages, double y, const QString& left, const QString& right,
                  const QByteArray& target) {
    QPainter& painter = pages.painter();
    const QRectF line(kTextBlock.left(), y, kTextBlock.width(), 26);
    painter.setPen(kInk);
    painter.setFont(serif(12));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, left);
    painter.setPen(kTeal);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, right);
    painter.setPen(QPen(kSand, 0.7));
    painter.drawLine(line.bottomLeft(), line.bottomRight());
    pages.addLink(line, target);
}

void SampleBook::drawContents(DrawnPages& pages) {
    QPainter& painter = pages.painter();
    drawPaper(painter, iContentsPage + 1);
    painter.setPen(kNavy);
    painter.setFont(serif(26, true));
    painter.drawText(QPointF(kTextBlock.left(), 110), QStringLiteral("Contents"));
    double y = 140;
    const auto add = [&](const QString& title, int page) {
        drawLinkLine(pages, y, title, QString::number(page + 1), toPage(page));
        y += 34;
    };
    for (const Chapter& chapter : iChapters)
        add(chapter.title, chapter.page);
    add(QStringLiteral("Where to go from here"), iLinksPage);
}

void SampleBook::drawColophon(DrawnPages& pages) const {
    QPainter& painter = pages.painter();
    painter.fillRect(kPage, kPaper);
    painter.setPen(kInk);
    painter.setFont(serif(10, false, true));
    painter.drawText(QRectF(kTextBlock.left(), 430, kTextBlock.width(), 110),
                     Qt::AlignLeft | Qt::TextWordWrap,
                     QStringLiteral("Every word, drawing and picture in this book was made for it. "
                                    "The landscapes were never photographed: a few rules and a "
                                    "handful of numbers drew them.\n\nSet in Liberation Serif and "
                                    "Liberation Sans."));
}

void SampleBook::drawLinks(DrawnPages& pages) {
    QPainter& painter = pages.painter();
    drawPaper(painter, iLinksPage + 1);
    painter.setPen(kNavy);
    painter.setFont(serif(22, true));
    painter.drawText(QPointF(kTextBlock.left(), 100), QStringLiteral("Where to go from here"));
    drawLinkLine(pages, 130, QStringLiteral("Back to the contents"),
                 QStringLiteral("page %1").arg(iContentsPage + 1), toPage(iContentsPage));
    drawLinkLine(pages, 164, QStringLiteral("To the cover"), QStringLiteral("page 1"), toPage(0));
    drawLinkLine(pages, 198, QStringLiteral("A shelf of books"), QStringLiteral("www.example.org"),
                 PDFBuilder::toURL("https://www.example.org/books/"));
    drawLinkLine(pages, 232, QStringLiteral("Write to the author"),
                 QStringLiteral("author@example.org"),
                 PDFBuilder::toURL("mailto:author@example.org"));
}

std::vector<PDFBuilder::OutlineEntry> SampleBook::outline() {
    std::vector<PDFBuilder::OutlineEntry> chapters;
    for (const Chapter& chapter : iChapters)
        chapters.push_back({chapter.title, toPage(chapter.page), {}});
    return {{QStringLiteral("Cover"), toPage(0), {}},
            {QStringLiteral("Contents"), toPage(iContentsPage), {}},
            {QStringLiteral("Chapters"), toPage(iChapters.front().page), chapters},
            {QStringLiteral("Where to go from here"), toPage(iLinksPage), {}}};
}

QByteArray SampleBook::make() {
    addLeaf([](DrawnPages& pages) { BookDrawings::cover(pages.painter()); });
    addLeaf([this](DrawnPages& pages) { drawColophon(pages); });
    iContentsPage = static_cast<int>(iLeaves.size());
    addLeaf([this](DrawnPages& pages) { drawContents(pages); });
    addAllChapters();
    iLinksPage = static_cast<int>(iLeaves.size());
    addLeaf([this](DrawnPages& pages) { drawLinks(pages); });
    // The back cover is a left-hand page.
    if (iLeaves.size() % 2 == 0)
        addPlate(QStringLiteral("Notes"), [](QPainter& painter) {
            BookDrawings::ruledLines(painter, kTextBlock.adjusted(0, 12, 0, 0));
        });
    addLeaf([](DrawnPages& pages) { BookDrawings::backCover(pages.painter()); });

    iPdf.setInfo("Title", BookText::kTitle);
    iPdf.setInfo("Subject", BookText::kSubtitle);
    iPdf.setInfo("Author", QStringLiteral("Folvero"));
    iPdf.setOutline(outline());
    DrawnPages pages(iPdf, kPageSize);
    for (size_t i = 0; i < iLeaves.size(); ++i) {
        if (i > 0)
            pages.nextPage();
        pages.painter().save();
        pages.painter().setRenderHint(QPainter::Antialiasing);
        iLeaves[i](pages);
        pages.painter().restore();
    }
    pages.finish();
    return iPdf.build();
}

} // namespace

std::vector<Sample> bookSamples() {
    return {{"sample.pdf", [] { return SampleBook().make(); }}};
}
