#include "Fuzz.h"
#include "pdf/SplitPDF.h"
#include "webbook/StartList.h"
#include "webbook/WebBook.h"
#include "webbook/WebPageText.h"
#include "webbook/reading/BookReading.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <array>
#include <cstdlib>
#include <functional>

namespace {

// A document that another process reads, which may answer anything: each answer after its length,
// in the order of PDFSerialization's harness.
class Answers final : public PDFDocument {
public:
    explicit Answers(Fuzz::Input input) : PDFDocument({}) {
        for (QByteArray& answer : iAnswers)
            answer = input.bytes(qsizetype(input.byte()));
    }
    template <class Value>
    Value answer(std::size_t question) const {
        return PDFSerialization::unpack<Value>(iAnswers[question]);
    }
    int pageCount() const override { return 3; }
    QString information(const char* /*key*/) const override { return answer<QString>(1); }
    QString language() const override { return answer<QString>(1); }
    PDFPage page(int /*index*/) const override { return answer<PDFPage>(2); }
    std::vector<PDFAnnotation> annotations(int /*index*/) const override {
        return answer<std::vector<PDFAnnotation>>(3);
    }
    std::vector<PDFOutlineNode> outline() const override {
        return answer<std::vector<PDFOutlineNode>>(4);
    }
    std::vector<QString> pageLabels() const override { return answer<std::vector<QString>>(5); }
    PDFViewing viewing() const override { return answer<PDFViewing>(7); }
    std::vector<QSizeF> pageSizes() const override { return answer<std::vector<QSizeF>>(8); }

private:
    std::array<QByteArray, 9> iAnswers;
};

// Qt's JSON does not keep what is no character, such as U+FFFE.
QStringList asInJson(const QStringList& texts) {
    const QByteArray json = QJsonDocument(QJsonArray::fromStringList(texts)).toJson();
    return QVariant(QJsonDocument::fromJson(json).array().toVariantList()).toStringList();
}

void checkStartList(const std::shared_ptr<PDFDocument>& document) {
    WebBook book;
    book.content.document = document;
    for (int number = 1; number <= document->pageCount(); ++number)
        book.pages.push_back({number, "1.png", {}, {}, {}, {}});
    book.complete({});
    const int start = book.metadata.start;
    Fuzz::require(start >= 0 && start <= document->pageCount(), "it opens at one of its pages");
    const QByteArray json = StartList::json(book, {1, {}, {}});
    Fuzz::require(!json.contains('<') && !json.contains('$'), "a list is safe in its page");
    QStringList labels;
    for (const QJsonValue& run : QJsonDocument::fromJson(json)["facts"]["labels"].toArray()) {
        for (int i = 0; i < run[2].toInt(); ++i)
            labels << run[0].toString() + QString::number(run[1].toInt() + i);
        if (run.isString())
            labels << run.toString();
    }
    Fuzz::require(labels == asInJson(book.metadata.labels),
                  "runs of labels are those of the pages");
}

// However words lie on their page.
void checkReading(const PDFPageContent& content, const std::vector<PageLayout::Link>& links) {
    BookReading reading;
    const auto lines = reading.addPage(1, content.text, links, Figures::of(content, {600, 800}));
    for (const ReadingBlock& block : reading.finish({})) {
        Fuzz::require(block.position == 1 &&
                          (block.kind == ReadingBlock::Kind::figure || !block.text().isEmpty()),
                      "a block has text");
        Fuzz::require(block.level >= 0 && block.level <= 6, "a heading has a level");
        for (const auto& [position, first, count] : block.lines)
            Fuzz::require(first + count <= lines.size(), "a block consists of the page's lines");
    }
}

void checkText(const PDFDocument& document, const PDFPageContent& content) {
    const auto links =
        WebPageText::linksOf(document.page(0), document.annotations(0), [](int) { return 0; });
    const QJsonObject text = WebPageText::asJson(document.page(0), content.text.lines, links);
    checkReading(content, links);
    constexpr int furthest = 1'000'000'000; // in tenths of a point
    const QJsonArray size = text["size"].toArray();
    for (const QJsonValue& link : text["links"].toArray()) {
        for (const int axis : {0, 1}) {
            const int from = link[axis].toInt(-1);
            const int most = size[axis].toInt();
            Fuzz::require(from >= 0, "a link lies on its page");
            Fuzz::require(from + link[axis + 2].toInt() <= most + 1 || // each is rounded
                              most == furthest,
                          "a link ends on its page");
        }
    }
    for (const QJsonValue& line : text["lines"].toArray()) {
        for (const int number : {0, 1, 2, 3})
            Fuzz::require(std::abs(line[number].toInt()) <= furthest, "a line lies somewhere");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto answers = std::make_shared<Answers>(Fuzz::Input(data, size));
    const auto split = SplitPDF::of(answers, Spreads::split, size % 2 == 1);
    const auto document = split ? split : std::shared_ptr<PDFDocument>(answers);
    const std::function<void()> uses[] = {
        [&] { checkStartList(document); },
        [&] { checkText(*document, answers->answer<PDFPageContent>(6)); },
        [&] { Fuzz::importLinks(document, document->pageCount()); }};
    for (const auto& use : uses) {
        try {
            use();
        } catch (const PlatformException& failure) {
            Fuzz::require(!failure.reason().isEmpty(), "a failure has a reason");
        }
    }
    return 0;
}
