#include "BookStyle.h"
#include "Documents.h"
#include "DrawnPages.h"
#include "NovelText.h"
#include "Samples.h"

#include <QAbstractTextDocumentLayout>
#include <QPainterPath>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <memory>

namespace {

constexpr QSizeF kPageSize(369, 567);
constexpr QRectF kTextBlock(50, 62, 269, 434); // 31 lines
constexpr double kLine = 14;
constexpr double kFolioY = 516;
constexpr int kPages = 300;
constexpr int kFrontPages = 8;
constexpr int kBackPages = 4;
constexpr int kHeadLines = 9; // of a chapter's first page, for number and title

const QColor kInk(28, 27, 30);
const QColor kAccent(122, 46, 38);

// Capitals with room between them, as running heads and titles have.
QFont capitals(double size) {
    QFont font = BookStyle::serif(size);
    font.setCapitalization(QFont::AllUppercase);
    font.setLetterSpacing(QFont::AbsoluteSpacing, size * 0.14);
    return font;
}

void centred(QPainter& painter, double y, const QFont& font, const QString& text,
             const QColor& color = kInk) {
    painter.setFont(font);
    painter.setPen(color);
    const QRectF line(kTextBlock.left() - 20, y, kTextBlock.width() + 40, font.pointSizeF() * 2);
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop, text);
}

// A wave between two short rules: the novel's one ornament.
void ornament(QPainter& painter, double y) {
    const double middle = kPageSize.width() / 2;
    QPainterPath path(QPointF(middle - 34, y));
    path.lineTo(middle - 14, y);
    path.cubicTo(middle - 7, y - 9, middle - 5, y + 9, middle, y);
    path.cubicTo(middle + 5, y - 9, middle + 7, y + 9, middle + 14, y);
    path.lineTo(middle + 34, y);
    painter.setPen(QPen(kAccent, 0.9));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

class Novel {
public:
    QByteArray make();

private:
    struct Chapter {
        QString title;
        int page; // zero-based
        std::unique_ptr<QTextDocument> text;
    };

    void writeChapters();
    void drawFrontMatter(DrawnPages& pages);
    void drawContents(DrawnPages& pages, size_t from, size_t to);
    void drawChapter(DrawnPages& pages, const Chapter& chapter, size_t index);
    QString numberOf(int page) const { return QString::number(page - kFrontPages + 1); }
    std::vector<PDFBuilder::OutlineEntry> outline();

    PDFBuilder iPdf;
    std::vector<Chapter> iChapters;
};

QTextBlockFormat proseFormat(double indent) {
    QTextBlockFormat format;
    format.setLineHeight(kLine, QTextBlockFormat::FixedHeight);
    format.setAlignment(Qt::AlignJustify);
    format.setTextIndent(indent);
    return format;
}

// A chapter's text on exactly `pageCount` pages; the last one may be filled in part.
std::unique_ptr<QTextDocument> write(unsigned chapter, int pageCount) {
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentMargin(0);
    document->setUseDesignMetrics(true);
    document->setDefaultFont(BookStyle::serif(10.6));
    document->setPageSize(kTextBlock.size());
    QTextCursor cursor(document.get());
    QTextBlockFormat room;
    room.setLineHeight(kHeadLines * kLine, QTextBlockFormat::FixedHeight);
    cursor.setBlockFormat(room);
    NovelText voice(chapter);
    bool first = true;
    while (document->pageCount() <= pageCount)
        for (const QString& part : voice.paragraph().split(QLatin1Char('\n'))) {
            cursor.insertBlock(proseFormat(first ? 0 : kLine));
            cursor.insertText(part);
            first = false;
        }
    while (document->pageCount() > pageCount) {
        cursor.movePosition(QTextCursor::End);
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.removeSelectedText();
    }
    return document;
}

void Novel::writeChapters() {
    const std::vector<QString> titles = NovelText::chapterTitles();
    const int count = static_cast<int>(titles.size());
    int page = kFrontPages;
    int left = kPages - kFrontPages - kBackPages;
    for (int i = 0; i < count; ++i) {
        const int even = left / (count - i);
        const int length = i + 1 == count ? left : even + (i * 5) % 7 - 3;
        iChapters.push_back(
            {titles[static_cast<size_t>(i)], page, write(static_cast<unsigned>(i), length)});
        page += length;
        left -= length;
    }
}

void drawFolio(QPainter& painter, const QString& number) {
    centred(painter, kFolioY, BookStyle::serif(9), number);
}

void Novel::drawContents(DrawnPages& pages, size_t from, size_t to) {
    QPainter& painter = pages.painter();
    double y = kTextBlock.top() + 12;
    if (from == 0) {
        centred(painter, y, capitals(12), QStringLiteral("Contents"));
        ornament(painter, y + 36);
        y += 62;
    }
    for (size_t i = from; i < to; ++i, y += 24) {
        const QRectF line(kTextBlock.left(), y, kTextBlock.width(), 20);
        painter.setPen(kAccent);
        painter.setFont(BookStyle::serif(9.5));
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, QString::number(i + 1));
        painter.setPen(kInk);
        painter.setFont(BookStyle::serif(11, false, true));
        painter.drawText(line.adjusted(26, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         iChapters[i].title);
        painter.setFont(BookStyle::serif(10));
        painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, numberOf(iChapters[i].page));
        pages.addLink(line, PDFBuilder::toDestination(iPdf.destination(iChapters[i].page)));
    }
}

void drawTitlePage(QPainter& painter) {
    centred(painter, 128, capitals(10), NovelText::kAuthor);
    centred(painter, 172, BookStyle::serif(30), QStringLiteral("The Ferry"));
    centred(painter, 208, BookStyle::serif(30), QStringLiteral("Almanac"));
    ornament(painter, 272);
    centred(painter, 288, BookStyle::serif(12, false, true), QStringLiteral("A novel"));
    centred(painter, 478, capitals(8), QStringLiteral("Landing Stage Books"));
}

void Novel::drawFrontMatter(DrawnPages& pages) {
    QPainter& painter = pages.painter();
    centred(painter, 170, capitals(12), NovelText::kTitle);
    pages.nextPage();
    pages.nextPage();
    drawTitlePage(painter);
    pages.nextPage();
    painter.setFont(BookStyle::serif(8.4));
    painter.setPen(kInk);
    painter.drawText(
        QRectF(kTextBlock.left(), 380, kTextBlock.width(), 120),
        Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap,
        QStringLiteral("No ferryman, river or ministry in this book is a real one. Its "
                       "sentences were put together by rule, to fill three hundred "
                       "pages that read like a novel.\n\nSet in Liberation Serif."));
    pages.nextPage();
    centred(painter, 190, BookStyle::serif(12, false, true),
            QString::fromUtf8("for whoever is still reading"));
    pages.nextPage();
    pages.nextPage();
    const size_t half = 14;
    drawContents(pages, 0, half);
    drawFolio(painter, QStringLiteral("vii"));
    pages.nextPage();
    drawContents(pages, half, iChapters.size());
    drawFolio(painter, QStringLiteral("viii"));
}

void Novel::drawChapter(DrawnPages& pages, const Chapter& chapter, size_t index) {
    QPainter& painter = pages.painter();
    for (int i = 0; i < chapter.text->pageCount(); ++i) {
        pages.nextPage();
        const QString number = numberOf(chapter.page + i);
        const bool left = (chapter.page + i) % 2 == 1;
        if (i == 0) {
            centred(painter, kTextBlock.top() + 18, BookStyle::serif(11),
                    QString::number(index + 1), kAccent);
            centred(painter, kTextBlock.top() + 40, BookStyle::serif(18, false, true),
                    chapter.title);
            ornament(painter, kTextBlock.top() + 88);
            drawFolio(painter, number);
        } else {
            centred(painter, 34, capitals(7.2), left ? NovelText::kTitle : chapter.title);
            drawFolio(painter, number);
        }
        const double top = i * kTextBlock.height();
        painter.save();
        painter.translate(kTextBlock.topLeft() - QPointF(0, top));
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = QRectF(0, top, kTextBlock.width(), kTextBlock.height());
        painter.setClipRect(context.clip);
        context.palette.setColor(QPalette::Text, kInk);
        chapter.text->documentLayout()->draw(&painter, context);
        painter.restore();
    }
}

std::vector<PDFBuilder::OutlineEntry> Novel::outline() {
    const auto toPage = [this](int page) {
        return PDFBuilder::toDestination(iPdf.destination(page));
    };
    std::vector<PDFBuilder::OutlineEntry> entries = {{QStringLiteral("Title"), toPage(2), {}},
                                                     {QStringLiteral("Contents"), toPage(6), {}}};
    for (size_t i = 0; i < iChapters.size(); ++i)
        entries.push_back({QStringLiteral("%1. %2").arg(i + 1).arg(iChapters[i].title),
                           toPage(iChapters[i].page),
                           {}});
    return entries;
}

QByteArray Novel::make() {
    writeChapters();
    iPdf.setInfo("Title", NovelText::kTitle);
    iPdf.setInfo("Author", NovelText::kAuthor);
    iPdf.setPageLabels(0, "/S /r");
    iPdf.setPageLabels(kFrontPages, "/S /D /St 1");
    iPdf.setOutline(outline());
    DrawnPages pages(iPdf, kPageSize);
    pages.painter().setRenderHint(QPainter::Antialiasing);
    drawFrontMatter(pages);
    for (size_t i = 0; i < iChapters.size(); ++i)
        drawChapter(pages, iChapters[i], i);
    pages.nextPage();
    pages.nextPage();
    ornament(pages.painter(), 240);
    centred(pages.painter(), 262, BookStyle::serif(11, false, true),
            QStringLiteral("Here the almanac ends."));
    pages.nextPage();
    pages.nextPage();
    pages.finish();
    return iPdf.build();
}

} // namespace

QByteArray makeNovel() {
    return Novel().make();
}
