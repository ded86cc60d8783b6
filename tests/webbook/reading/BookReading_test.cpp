#include "webbook/reading/BookReading.h"

#include <QRegularExpression>
#include <QStringList>
#include <gtest/gtest.h>

namespace {

using Lines = std::vector<PDFTextLine>;

constexpr double usualSize = 10;
constexpr double letter = 5;

// A line of words from a left edge on, or up to it where the text runs from right to left.
PDFTextLine line(double edge, double baseline, const QString& text, double letters = usualSize,
                 int style = plainText) {
    const double wide = letter * letters / usualSize;
    PDFTextLine made;
    made.baseline = baseline;
    made.rightToLeft = text.front().direction() == QChar::DirR;
    const double length = wide * double(text.size());
    made.box =
        QRectF(made.rightToLeft ? edge - length : edge, baseline - 0.8 * letters, length, letters);
    double start = 0;
    for (const QString& word : text.split(u' ')) {
        const double end = start + wide * double(word.size());
        made.words.push_back(
            {word + u' ', made.rightToLeft ? length - end : start, end - start, letters, style});
        start = end + wide;
    }
    made.words.back().text.chop(1);
    return made;
}

// Lines below each other, 12 points apart; each text begins with a blank for each unit of indent.
Lines lines(double left, double top, const QStringList& texts, double letters = usualSize) {
    Lines made;
    for (const QString& text : texts) {
        const QString words = text.trimmed();
        if (!words.isEmpty())
            made.push_back(
                line(left + letter * double(text.indexOf(words.front())), top, words, letters));
        top += 12;
    }
    return made;
}

Lines operator+(Lines a, const Lines& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// Blanks and hyphens come and go where lines are joined.
QString letters(QString text) {
    static const QRegularExpression others("[\\s\\x{ad}\\x{2010}-]");
    return text.remove(others);
}

// The letters of the lines that a block is made of, of pages in the order in which they are read.
QString lettersOfLines(const ReadingBlock& block, const std::vector<Lines>& ordered) {
    QString found;
    for (const auto& [position, first, count] : block.lines) {
        for (std::size_t i = first; i < first + count; ++i) {
            for (const PDFTextWord& word : ordered[std::size_t(position) - 1].at(i).words)
                found += letters(word.text);
        }
    }
    return found;
}

// One text for each block, with its kind before it unless it is a paragraph.
QStringList read(const std::vector<Lines>& pages,
                 const std::vector<Headings::Entry>& outline = {}) {
    BookReading reading;
    int position = 0;
    std::vector<Lines> ordered;
    for (const Lines& page : pages)
        ordered.push_back(reading.addPage(++position, {page, {}, {}}, {}));
    static const QStringList kinds{"", "h", "item ", "note ", "code ", "row "};
    QStringList texts;
    for (const ReadingBlock& block : reading.finish(outline)) {
        const QString level = block.level > 0 ? QString::number(block.level) + ' ' : QString();
        EXPECT_EQ(lettersOfLines(block, ordered), letters(block.text()));
        texts << kinds[int(block.kind)] + level + block.text().replace('\t', '|');
    }
    return texts;
}

// A paragraph of full lines, whose words name it.
QStringList full(const QString& name, int count, const QString& last = {}) {
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts << QString("%1 word word word word word word").arg(name);
    return last.isEmpty() ? texts : texts << last;
}

QString joined(const QStringList& texts) {
    return texts.join(' ');
}

} // namespace

TEST(BookReading, ReadsColumnsOneAfterTheOtherAndJoinsWhatGoesOn) {
    const QStringList left = full("left", 5);
    const Lines page = Lines{line(50, 100, "A title over both of the columns", 16)} +
                       lines(50, 130, left) +
                       lines(250, 130, full("on", 1, "its end.") + full("more", 3, "end."));
    EXPECT_EQ(read({page}), (QStringList{"h1 A title over both of the columns",
                                         joined(left + full("on", 1, "its end.")),
                                         joined(full("more", 3, "end."))}));
}

TEST(BookReading, ReadsTheColumnsOfAnIndexWhoseLettersAreLarge) {
    const auto column = [](double left, const QString& first, const QString& second) {
        return Lines{line(left, 130, first, 16)} + lines(left, 145, full(first, 2)) +
               Lines{line(left, 185, second, 16)} + lines(left, 200, full(second, 3));
    };
    const Lines page = Lines{line(50, 100, "Concept index and more", 16)} + column(50, "A", "B") +
                       column(250, "N", "O");
    QString found;
    for (const QString& text : read({page}))
        found += text.section(' ', text.startsWith('h') ? 1 : 0).left(1);
    EXPECT_EQ(found, "CAABBNNOO");
}

TEST(BookReading, KeepsRowsOfTablesTogether) {
    Lines page;
    for (const int row : {0, 1, 2, 3, 4}) {
        page.push_back(line(50, 100 + 12 * row, "Key" + QString::number(row)));
        page.push_back(line(150, 100 + 12 * row, "the value of it"));
    }
    EXPECT_EQ(read({page}).first(2),
              (QStringList{"row Key0|the value of it", "row Key1|the value of it"}));
}

TEST(BookReading, DividesParagraphs) {
    const QStringList a = full("a", 3);
    const QStringList b = full("b", 3);
    const auto indented = [](QStringList texts) {
        texts[0].prepend("   ").chop(3);
        return texts;
    };
    const struct {
        const char* by;
        QStringList texts;
        QStringList found;
    } cases[] = {
        {"an indent", a + indented(b), {joined(a), joined(indented(b)).trimmed()}},
        {"a gap", a + QStringList{""} + b, {joined(a), joined(b)}},
        {"a short last line", a + QStringList{"end."} + b, {joined(a) + " end.", joined(b)}},
        {"bullets", {"• one", "• two"}, {"item • one", "item • two"}},
        {"numbers, whose items are indented",
         {"1. one word word word word word", "   word word.", "2. two."},
         {"item 1. one word word word word word word word.", "item 2. two."}},
        {"dots that lead to numbers",
         {"abc. . . . . . . . . . . . . . . 12", "def. . . . . . . . . . . 13, xiv"},
         {"abc. . . . . . . . . . . . . . . 12", "def. . . . . . . . . . . 13, xiv"}},
        {"verses",
         {"Short one", "shorter", "and this is a line", "last"},
         {"Short one", "shorter", "and this is a line", "last"}},
    };
    const Lines body = lines(50, 300, full("body", 6));
    for (const auto& [by, texts, found] : cases)
        EXPECT_EQ(read({lines(50, 100, texts) + body}).first(found.size()), found) << by;
}

TEST(BookReading, KeepsAParagraphThatBeginsWithASmallerTitle) {
    const QStringList rest = full("rest", 4, "end.");
    Lines page = lines(50, 100, QStringList{"Title within. It goes on so it has"} + rest);
    for (PDFTextWord& word : page.front().words) {
        if (word.start < 13 * letter)
            std::tie(word.size, word.style) = std::pair(0.9 * usualSize, int(boldText));
    }
    EXPECT_EQ(read({page}), QStringList{"Title within. It goes on so it has " + joined(rest)});
}

TEST(BookReading, ClosesHyphensAsTheBookWritesTheWords) {
    const auto withHyphen = [](const QString& before, const QString& after) {
        return lines(50, 100,
                     {"word word word word word " + before, after + " word.", "",
                      "The workshop of the well-known."});
    };
    const struct {
        QString before, after, found;
    } cases[] = {{"work-", "shop", "workshop"},       {"well-", "known", "well-known"},
                 {"unseen-", "like", "unseenlike"},   {"Anglo-", "Saxon", "Anglo-Saxon"},
                 {"1990-", "1995", "1990-1995"},      {"it -", "is", "it - is"},
                 {"漢字漢字", "仮名", "漢字漢字仮名"}};
    for (const auto& [before, after, found] : cases)
        EXPECT_EQ(read({withHyphen(before, after)}).first(),
                  "word word word word word " + found + " word.");
}

TEST(BookReading, LeavesOutWhatRecursFromPageToPage) {
    std::vector<Lines> pages;
    for (const char* name : {"One", "Two", "Three", "Four"})
        pages.push_back(lines(50, 20, {"Chapter of the book"}) +
                        Lines{line(50, 60, "Overview", 20)} + lines(50, 100, full(name, 5, name)) +
                        Lines{line(150, 500, QString::number(pages.size() + 7))});
    const QStringList found = read(pages);
    EXPECT_EQ(found.count("h1 Overview"), 4) << "titles of slides recur, too";
    EXPECT_EQ(found.size(), 8) << found.join('\n').toStdString();
}

TEST(BookReading, PutsFootnotesBehindTheParagraphThatGoesOn) {
    const auto marked = [](const QString& text) {
        PDFTextLine note = line(50, 400, text, 8);
        note.words.front().size = 5;
        return Lines{note};
    };
    const QStringList found =
        read({lines(50, 100, full("first", 6)) + marked("1 A note of this page."),
              lines(50, 100, full("second", 2, "end."))});
    EXPECT_EQ(found, (QStringList{joined(full("first", 6) + full("second", 2, "end.")),
                                  "note 1 A note of this page."}));
}

TEST(BookReading, FindsHeadingsByOutlineNumberSizeAndBoldness) {
    const auto page = [](const QString& large, const QString& small) {
        return Lines{line(50, 60, large, 16)} + lines(50, 100, full("body", 5, "end.")) +
               Lines{line(50, 200, small, usualSize, boldText)} +
               lines(50, 220, full("text", 5, "end."));
    };
    const auto levels = [&](const Lines& lines, const std::vector<Headings::Entry>& outline) {
        return read({lines}, outline).filter(QRegularExpression("^h\\d"));
    };
    EXPECT_EQ(levels(page("Large", "Bold"), {}), (QStringList{"h1 Large", "h2 Bold"}));
    EXPECT_EQ(levels(page("Large", "Bold"), {{"1.2 Large", 1, 2}}),
              (QStringList{"h2 Large", "h3 Bold"}));
    EXPECT_EQ(levels(page("Large3", "1. Bold [4, 5]"), {{"Large", 1, 2}, {"1 Bold", 1, 3}}),
              (QStringList{"h2 Large3", "h3 1. Bold [4, 5]"}));
    EXPECT_EQ(levels(page("3 Large", "3.1.4 Bold"), {}),
              (QStringList{"h1 3 Large", "h3 3.1.4 Bold"}));
}

TEST(BookReading, ReadsColumnsFromRightToLeftWhereTheTextDoes) {
    const QString word = QStringLiteral("שלום ");
    const auto column = [&](double right, const QString& first) {
        Lines made;
        for (const int row : {0, 1, 2, 3})
            made.push_back(line(right, 100 + 12 * row, first + u' ' + word.repeated(4).trimmed()));
        return made;
    };
    const QStringList found = read({column(200, "ב") + column(400, "א")});
    EXPECT_EQ(found.join(' ').front(), u'א');
}

TEST(BookReading, GivesWordsTheLinksAroundThem) {
    const Lines page = lines(50, 100, {"See example.org for more."});
    BookReading reading;
    reading.addPage(1, {page, {}, {}}, {{QRectF(68, 90, 60, 15), "https://example.org/", 0}});
    const auto blocks = reading.finish({});
    ASSERT_EQ(blocks.front().runs.size(), 3U);
    EXPECT_EQ(blocks.front().runs[1].text, "example.org");
    EXPECT_EQ(blocks.front().runs[1].url, "https://example.org/");
}

TEST(BookReading, PutsFiguresWithTheirCaptionsWhereTheyStand) {
    const Lines words = Lines{line(120, 180, "label", 8)};
    const Lines page = lines(50, 100, full("above", 3, "it.")) + words +
                       lines(50, 250, {"Figure 1: A hill"}) + lines(50, 280, full("below", 3));
    BookReading reading;
    const Lines ordered = reading.addPage(1, {page, {}, {}}, {},
                                          {{600, 800}, {{QRectF(50, 150, 200, 80), true, {}}}});
    const auto blocks = reading.finish({});
    ASSERT_EQ(blocks.size(), 3U);
    const ReadingBlock& figure = blocks[1];
    EXPECT_EQ(figure.kind, ReadingBlock::Kind::figure);
    EXPECT_EQ(figure.text(), "Figure 1: A hill");
    EXPECT_EQ(figure.words, "label");
    EXPECT_EQ(lettersOfLines(figure, {ordered}), "Figure1:Ahill");
    ASSERT_EQ(figure.within.count, 1U);
    EXPECT_EQ(ordered[figure.within.first].words[0].text, "label");
}

TEST(BookReading, LeavesOutPicturesOfRunningHeads) {
    BookReading reading;
    for (const int position : {1, 2, 3}) {
        const Figures::Figure logo{QRectF(50, 20, 90, 40), true, {}};
        const Figures::Figure photo{QRectF(50, 300, 200, 200), true, {}};
        reading.addPage(position, {lines(50, 100, full(QString(position, u'x'), 3)), {}, {}}, {},
                        {{600, 800}, {logo, photo}});
    }
    for (const ReadingBlock& block : reading.finish({}))
        EXPECT_NE(block.box.height(), 40) << block.position;
}
