#include "Samples.h"
#include "builder/PDFBuilder.h"
#include "builder/PDFContent.h"

namespace {

// URLs that a book must not follow, in spellings that browsers treat alike.
constexpr const char* addresses[] = {
    "javascript:window.broken=1",
    "JaVaScRiPt:window.broken=1",
    "java\tscript:window.broken=1",
    "java\nscript:window.broken=1",
    "\x01 javascript:window.broken=1",
    "vbscript:window.broken=1",
    "data:text/html,<script>window.broken=1</script>",
    "file:///etc/passwd",
    "\\\\example.invalid\\share",
    "https://example.invalid/\"><script>window.broken=1</script>",
};

// A document whose texts all try to inject markup into the page that shows them, and whose links
// lead to forbidden places.
QByteArray hostile() {
    PDFBuilder pdf;
    pdf.setInfo("Title", QStringLiteral("</title><script>window.broken=1</script>]]> &lt;b&gt; "
                                        "<img src=x onerror=\"window.broken=1\">"));
    PDFBuilder::Page page;
    page.mediaBox = QRectF(0, 0, 600, 800);
    page.fonts = {{"F", "Helvetica"}};
    page.content = PDFContent::text("F", 14, {60, 740}, "<img src=x onerror=window.broken=1>");
    QRectF rect(60, 680, 480, 30);
    for (const char* address : addresses) {
        page.annotations.push_back(PDFBuilder::link(rect, PDFBuilder::toURL(address)));
        rect.translate(0, -40);
    }
    for (int number = 1; number <= 4; ++number)
        pdf.addPage(page);
    const QByteArray first = PDFBuilder::toDestination(pdf.destination(0));
    pdf.setOutline({{QStringLiteral("<img src=x onerror=\"window.broken=1\">"), first, {}},
                    {QStringLiteral("</script><script>window.broken=1</script>"), first, {}},
                    {QStringLiteral("]]></o><o>&lt;b&gt;${index.title}"), first, {}},
                    {QStringLiteral("\u001b]0;taken over\u0007\u001b[2J"), first, {}}});
    return pdf.build();
}

} // namespace

std::vector<Sample> hostileSamples() {
    return {{"hostile.pdf", hostile}};
}
