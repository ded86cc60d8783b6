#include "Samples.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"

namespace {

constexpr QRectF kPage(0, 0, 600, 800);

PDFBuilder::Page titledPage(const QByteArray& title) {
    PDFBuilder::Page page;
    page.mediaBox = kPage;
    page.fonts = {{"R", "Helvetica"}, {"B", "Helvetica-Bold"}};
    page.content = PDFContent::text("B", 24, {60, 740}, title);
    return page;
}

// Lines of links, from the top down, with what each shows beside it.
class LinkLines {
public:
    explicit LinkLines(PDFBuilder::Page& page) : iPage(page) {}

    void add(const QByteArray& caption, const QByteArray& target) {
        addAnnotation(caption, PDFBuilder::link(nextRect(), target));
    }
    void addOther(const QByteArray& subtype, const QByteArray& extraEntries) {
        addAnnotation(subtype + " annotation, no link",
                      PDFBuilder::annotation(subtype, nextRect(), extraEntries));
    }

private:
    QRectF nextRect() const { return {60, iTop - 40, 120, 40}; }

    void addAnnotation(const QByteArray& caption, const QByteArray& annotation) {
        const QRectF rect = nextRect();
        iPage.content += PDFContent::fillColor(QColor(220, 232, 250)) + PDFContent::fillRect(rect) +
                         PDFContent::fillColor(QColor(20, 50, 120)) +
                         PDFContent::text("R", 14, {200, rect.y() + 15}, caption);
        iPage.annotations.push_back(annotation);
        iTop -= 60;
    }

    PDFBuilder::Page& iPage;
    double iTop = 700;
};

QByteArray links() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("Links of every kind"));
    const QByteArray web = PDFBuilder::toURL("https://www.example.org/books?page=1&size=2");
    pdf.addNamedDestination("chapter two", pdf.destination(1));
    pdf.addOldNamedDestination("chapter3", pdf.destination(2, 60, 700));

    PDFBuilder::Page first = titledPage("Links that lead somewhere");
    LinkLines lines(first);
    lines.add("web address", web);
    lines.add("page 2, explicit", PDFBuilder::toDestination(pdf.destination(1)));
    lines.add("page 2 by a name of the name tree", PDFBuilder::toName("chapter two"));
    lines.add("page 3 by an old name", PDFBuilder::toOldName("chapter3"));
    lines.add("page 3 by a go-to action", PDFBuilder::toDestinationByAction(pdf.destination(2)));
    lines.add("web address and page 3", web + PDFBuilder::toDestination(pdf.destination(2)));
    lines.add("mail address", PDFBuilder::toURL("mailto:reader@example.org"));
    pdf.addPage(first);

    PDFBuilder::Page second = titledPage("Links that lead nowhere, other annotations");
    LinkLines others(second);
    others.add("neither address nor destination", {});
    others.add("a name that does not exist", PDFBuilder::toName("nowhere"));
    others.add("a go-to action without a page", "/A << /S /GoTo /D [null /Fit] >> ");
    others.addOther("Text", "/Contents " + PDFBuilder::text(QStringLiteral("A note")) + " ");
    others.addOther("Square", "/C [1 0 0] ");
    pdf.addPage(second);

    for (const int rotation : {90, 180, 270, 45}) {
        PDFBuilder::Page turned = titledPage("Rotate " + QByteArray::number(rotation));
        turned.rotate = rotation;
        LinkLines turnedLines(turned);
        turnedLines.add("web address", web);
        turnedLines.add("page 1", PDFBuilder::toDestination(pdf.destination(0)));
        pdf.addPage(turned);
    }
    return pdf.build();
}

QByteArray outline() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("An outline three deep"));
    for (int number = 1; number <= 9; ++number)
        pdf.addPage(titledPage("Page " + QByteArray::number(number)));
    pdf.addNamedDestination("appendix", pdf.destination(8));
    pdf.setPageLabels(0, "/S /r");
    pdf.setPageLabels(2, "/S /D /St 1");

    const auto to = [&pdf](int page) { return PDFBuilder::toDestination(pdf.destination(page)); };
    const PDFBuilder::OutlineEntry deepest{QStringLiteral("1.1.1 Details"), to(4), {}};
    const PDFBuilder::OutlineEntry section{QStringLiteral("1.1 A section"), to(3), {deepest}};
    const PDFBuilder::OutlineEntry byAction{
        QStringLiteral("1.2 By action"), PDFBuilder::toDestinationByAction(pdf.destination(5)), {}};
    pdf.setOutline({{QStringLiteral("Preface"), to(0), {}},
                    {QStringLiteral("1 Größe, 大きさ & <more>"), to(2), {section, byAction}},
                    {QStringLiteral("Without a destination"), {}, {}},
                    {QStringLiteral("Appendix, by name"), PDFBuilder::toName("appendix"), {}}});
    return pdf.build();
}

} // namespace

std::vector<Sample> navigationSamples() {
    return {{"links.pdf", links}, {"outline.pdf", outline}};
}
