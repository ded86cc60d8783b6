#include "webbook/reading/TaggedLayout.h"

#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"
#include "pdf/DrawablePDF.h"
#include "pdf/DrawablePage.h"
#include "support/TemplateLibrary.h"
#include "webbook/reading/BookReading.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// A text on the page and the elements that it is in, from the outermost on; what follows # tells
// those of one type apart. Without a path it has no mark.
struct Piece {
    QByteArray path;
    QByteArray text;
    QPointF place;
    QByteArray properties = {}; // of its mark
};

// A page whose content is in the reverse order of its structure tree.
class TaggedPage {
public:
    explicit TaggedPage(const std::vector<Piece>& pieces) {
        QByteArray content;
        QByteArray parents;
        for (const Piece& piece : pieces) {
            QByteArray mark = "/Artifact BMC\n";
            if (piece.path.isEmpty()) {
                mark = "/Span <<>> BDC\n";
            } else if (piece.path != "Artifact") {
                const int leaf = element(piece.path);
                const QByteArray id = QByteArray::number(iMarks++);
                iKids[leaf] += ' ' + id;
                parents += PDFBuilder::reference(leaf) + ' ';
                mark = "/P <</MCID " + id + piece.properties + ">> BDC\n";
            }
            content.prepend(mark + PDFContent::text("F", 10, piece.place, piece.text) + "EMC\n");
        }
        PDFBuilder::Page page = PDFBuilder::page({400, 400}, content);
        page.fonts["F"] = "Helvetica";
        page.extraEntries = "/StructParents 0";
        builder.addPage(page);
        builder.setObject(iRoot, "<</K[" + iKids[iRoot] + "]/ParentTree<</Nums[0[" + parents +
                                     "]]>>/RoleMap<</Kopf/H2/Loop/Loop>>>>");
        builder.addCatalogEntries("/StructTreeRoot " + PDFBuilder::reference(iRoot));
    }

    // The number of an element, with those around it.
    int element(const QByteArray& path) {
        const auto [found, isNew] = iElements.try_emplace(path, 0);
        if (!isNew)
            return found->second;
        const int number = found->second = builder.reserveObject();
        const qsizetype slash = path.lastIndexOf('/');
        const int parent = slash < 0 ? iRoot : element(path.left(slash));
        iKids[parent] += ' ' + PDFBuilder::reference(number);
        iEntries[number] =
            "/S/" + path.mid(slash + 1).split('#').front() + "/P " + PDFBuilder::reference(parent);
        return number;
    }
    void addEntries(const QByteArray& path, const QByteArray& entries) {
        iEntries[element(path)] += entries;
    }

    PDFPageText text() {
        for (const auto& [number, entries] : iEntries)
            builder.setObject(number, "<<" + entries + "/K[" + iKids[number] + "]>>");
        const QTemporaryDir folder;
        TestFiles::write(folder.filePath("test.pdf"), builder.build());
        const DrawablePDF document(folder.filePath("test.pdf"));
        return DrawablePage(document, 0, {}, DrawablePage::Content::picturesAndText).text();
    }

    // One text for each block, with its kind before it unless it is a paragraph.
    QStringList read() {
        BookReading reading;
        reading.addPage(1, text(), {});
        static const QStringList kinds{"", "h", "item ", "note ", "code ", "row "};
        QStringList texts;
        for (const ReadingBlock& block : reading.finish({})) {
            const QString level = block.level > 0 ? QString::number(block.level) + ' ' : QString();
            texts << kinds[int(block.kind)] + level + block.text().replace('\t', '|');
        }
        return texts;
    }

    PDFBuilder builder;

private:
    int iRoot = builder.reserveObject();
    int iMarks = 0;
    std::map<QByteArray, int> iElements;
    std::map<int, QByteArray> iKids;
    std::map<int, QByteArray> iEntries;
};

QStringList withoutTags(std::vector<Piece> pieces) {
    for (Piece& piece : pieces)
        piece.path.clear();
    return TaggedPage(pieces).read();
}

const std::vector<Piece> prose{{"H1#1", "The first paragraph is this one,", {20, 300}},
                               {"H1#1", "and here is the end of it.", {20, 288}},
                               {"P#2", "The second paragraph is this one,", {20, 264}},
                               {"P#2", "and here is the end of it.", {20, 252}},
                               {"P#3", "The third paragraph is this one,", {20, 228}},
                               {"P#3", "and here is the end of it.", {20, 216}}};

} // namespace

TEST(TaggedLayout, ReadsWhatTheTagsSay) {
    const QByteArray table = "Sect/Table/TBody/";
    TaggedPage page({{"Artifact", "Head of the page", {20, 390}},
                     {"Sect/H", "As large as the text", {20, 370}},
                     {"Sect/P#1/Span", "A paragraph with a word of its own", {20, 350}},
                     {"Sect/P#1/Note/P", "1 a note", {20, 20}},
                     {"Sect/P#1/Span#2", "and what follows.", {20, 338}},
                     {"Kopf", "Another heading", {20, 320}},
                     {"Sect/L/LI#1/Lbl", "a)", {20, 300}},
                     {"Sect/L/LI#1/LBody/P#1", "the item", {40, 300}},
                     {"Sect/L/LI#1/LBody/P#2", "and more of it", {40, 288}},
                     {"Sect/L/LI#1/LBody/L/LI", "- inner", {60, 276}},
                     {table + "TR#1/TH#1", "Key", {20, 240}},
                     {table + "TR#1/TH#2", "Value", {120, 240}},
                     {table + "TR#2/TD#1/P", "a cell", {20, 228}},
                     {table + "TR#2/TD#1/P", "of two lines", {20, 216}},
                     {table + "TR#2/TD#2/P", "the other", {120, 228}},
                     {table + "TR#2/TD#2/P", "two lines", {120, 216}},
                     {"Sect/P#2/Loop", "What no type is known of", {20, 180}},
                     {"Sect/P#3", "o_ce", {20, 160}, "/ActualText(office)"}});
    EXPECT_EQ(page.read(),
              (QStringList{"h1 As large as the text",
                           "A paragraph with a word of its own and what follows.", "note 1 a note",
                           "item a) the item", "and more of it", "item - inner", "row Key|Value",
                           "row a cell of two lines|the other two lines",
                           "What no type is known of", "office", "h2 Another heading"}));
}

// They are read by the rules for documents without tags.
TEST(TaggedLayout, TrustsNoTagsThatCantBeMeant) {
    const auto with = [](auto change) {
        std::vector<Piece> pieces = prose;
        for (std::size_t i = 0; i < pieces.size(); ++i)
            change(pieces[i], i);
        return pieces;
    };
    const auto half = with([](Piece& piece, std::size_t i) { piece.path = i < 3 ? "P" : ""; });
    const auto one = with([](Piece& piece, std::size_t i) {
        piece.path = "P";
        piece.place.setY(300 - 40.0 * double(i)); // nor is that one paragraph
    });
    std::vector<Piece> letters;
    for (int i = 0; i < 30; ++i)
        letters.push_back({"H1#" + QByteArray::number(i), "m", {20.0 + 9 * i, 300}});
    for (const auto& pieces : {half, one, letters})
        EXPECT_EQ(TaggedPage(pieces).read(), withoutTags(pieces)) << pieces[0].path.toStdString();
}

TEST(TaggedLayout, SurvivesTreesWithoutAnEnd) {
    const QStringList plain = withoutTags(prose);
    ASSERT_NE(TaggedPage(prose).read(), plain);
    TaggedPage round(prose);
    for (const char* path : {"H1#1", "P#2", "P#3"}) {
        const QByteArray self = PDFBuilder::reference(round.element(path));
        round.addEntries(path, "/P " + self);
    }
    EXPECT_EQ(round.read(), plain);
}

TEST(TaggedLayout, ReportsWhatStandsForFigures) {
    TaggedPage page({{"P", "Some text.", {20, 300}},
                     {"Figure", "label", {110, 210}},
                     {"Figure#2", "elsewhere", {20, 20}}});
    page.addEntries("Figure#2", "/Alt(Nowhere)/A[<</O/Layout/BBox[500 200 580 260]>>]");
    page.addEntries("Figure", "/Alt(A red square)/A<</O/Layout/BBox[100 200 180 260]>>");
    const auto found = page.text().alternatives;
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].box, QRectF(100, 140, 80, 60));
    EXPECT_EQ(found[0].text, "A red square");
}
