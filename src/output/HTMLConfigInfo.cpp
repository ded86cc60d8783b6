#include "output/HTMLConfigInfo.h"

#include "output/BookLayout.h"
#include "output/PageScripts.h"
#include "system/Files.h"

QString PagePlaces::flashMovie() {
    return QStringLiteral(
               "<object type=\"application/x-shockwave-flash\" data=\"%1\" width=\"100%\" "
               "height=\"90%\"></object>")
        .arg(BookLayout::movie);
}

QString PagePlaces::allowedScript(const QString& text) {
    iAllowedSources << PageScripts::source(text);
    return QStringLiteral("<script>%1</script>\n").arg(text);
}

TextTemplate HTMLConfigInfo::filled(const QString& pageTemplate, const PagePlaces& places) const {
    TextTemplate page(pageTemplate);
    page.setItem(QStringLiteral("index.title"), iHTMLTitle);
    page.setItem(QStringLiteral("meta.keywords"), iHTMLKeywords);
    page.setItem(QStringLiteral("meta.description"), iHTMLDescription);
    page.setItem(PagePlaces::languageName, places.language);
    const QString allowed =
        PageScripts::sources(pageTemplate) + u' ' + places.allowedSources().join(u' ');
    page.setItem(PagePlaces::scriptsName, allowed.trimmed());
    // Pages of templates that were copied from ours have it still.
    page.setItem(QStringLiteral("book.start"), {});
    page.setItem(PagePlaces::headName, places.head);
    page.setItem(PagePlaces::movieName, places.movie);
    page.setItem(PagePlaces::endName, {});
    return page;
}

bool HTMLConfigInfo::generateHTMLFrom(const QString& templatePath, const QString& toFile,
                                      Message* error) const {
    const QString page = QString::fromUtf8(Files::contents(templatePath));
    return Files::writeAtomically(toFile, filled(page, {}).parse().toUtf8(), error);
}
