#include "library/catalogue/SearchPage.h"

#include "library/catalogue/CatalogueLayout.h"
#include "library/catalogue/CatalogueSite.h"
#include "library/catalogue/SitePage.h"
#include "output/WebScript.h"

namespace {

QByteArray field(const CatalogueSite& site, const char* name, const char* attributes) {
    return QByteArray("<label>") + site.texts.html(name) + "<input name=\"" + name + "\" " +
           attributes + "></label>\n";
}

// Hidden until the script is there to answer.
QByteArray filters(const CatalogueSite& site) {
    constexpr char text[] = "dir=\"auto\" autocomplete=\"off\" maxlength=\"100\"";
    constexpr char year[] = "inputmode=\"numeric\" autocomplete=\"off\" maxlength=\"4\" size=\"5\"";
    QByteArray markup = "<form class=\"filters\" hidden>\n<details>\n<summary>" +
                        site.texts.html("filters") + "<span class=\"used\"></span></summary>\n";
    if (!site.authors.isEmpty())
        markup += field(site, "author", (QByteArray(text) + " list=\"authors\"").constData()) +
                  "<datalist id=\"authors\"></datalist>\n";
    if (!site.subjects.isEmpty())
        markup += field(site, "subject", (QByteArray(text) + " list=\"subjects\"").constData()) +
                  "<datalist id=\"subjects\"></datalist>\n";
    if (!site.languages.isEmpty())
        markup += "<label>" + site.texts.html("language") +
                  "<select name=\"language\"><option value=\"\">" +
                  site.texts.html("allLanguages") + "</option></select></label>\n";
    if (!site.years.isEmpty())
        markup += "<div class=\"span\">\n" + field(site, "from", year) + field(site, "to", year) +
                  "</div>\n";
    return markup + "<button type=\"reset\">" + site.texts.html("reset") +
           "</button>\n</details>\n</form>\n";
}

// Hidden until a server is known to search the texts of the books.
QByteArray views(const CatalogueSite& site) {
    const auto button = [&](const QByteArray& value, const char* text, const QByteArray& pressed) {
        return "<button type=\"button\" value=\"" + value + "\" aria-pressed=\"" + pressed + "\">" +
               site.texts.html(text) + " <span class=\"count\"></span></button>\n";
    };
    return "<div class=\"views\" role=\"group\" hidden>\n" + button("books", "inBooks", "true") +
           button("texts", "inTexts", "false") + "</div>\n";
}

} // namespace

void SearchPage::write(const CatalogueSite& site) {
    SitePage page(site, CatalogueLayout::search);
    page.isSearch = true;
    page.isListed = false;
    page.title = site.texts.html("search");
    page.head = "<script type=\"application/json\" id=\"texts\">" +
                WebScript::json(site.texts.forScript()) + "</script>\n";
    page.main = "<div class=\"heading\"><h1>" + page.title + "</h1></div>\n" +
                page.searchForm("large") + "<noscript><p class=\"note\">" +
                site.texts.html("noScript") + "</p></noscript>\n<div class=\"finding\">\n" +
                filters(site) + "<div class=\"found\">\n" + views(site) +
                "<p class=\"status\" role=\"status\"></p>\n"
                "<ul class=\"books\"></ul>\n<ol class=\"hits\" hidden></ol>\n<button "
                "type=\"button\" class=\"next\" hidden>" +
                site.texts.html("showMore") + "</button>\n</div>\n</div>\n";
    page.write();
}
