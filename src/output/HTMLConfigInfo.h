#pragma once

#include "base/Message.h"
#include "output/TextTemplate.h"

#include <QString>
#include <QStringList>

// What a kind of book puts into the places of its template's page; by default a classic one.
struct PagePlaces {
    // Its placeholders.
    static inline const QString languageName = QStringLiteral("book.language");
    static inline const QString scriptsName = QStringLiteral("book.scripts");
    static inline const QString headName = QStringLiteral("book.head");
    static inline const QString movieName = QStringLiteral("book.movie");
    // At the end of the body, where the files of a book in one page go. They may be too large for
    // memory, so the text template leaves it empty.
    static inline const QString endName = QStringLiteral("book.end");

    QString language = QStringLiteral("en");
    QString head;                 // markup at the end of the head
    QString movie = flashMovie(); // the Flash movie, for browsers that run no scripts

    static QString flashMovie();
    // The element of a script that becomes part of a place. The page's content security policy
    // allows it, so it must contain no text that is not ours, except as JSON.
    QString allowedScript(const QString& text);
    // Allows scripts that the page's own ones make: those of a book in one file have no addresses.
    void allowMadeScripts() { iAllowedSources << QStringLiteral("blob:"); }
    const QStringList& allowedSources() const { return iAllowedSources; }

private:
    QStringList iAllowedSources;
};

// Texts for the HTML page of a book.
class HTMLConfigInfo {
public:
    QString HTMLTitle() const { return iHTMLTitle; }
    void setHTMLTitle(const QString& title) { iHTMLTitle = title; }
    QString HTMLKeywords() const { return iHTMLKeywords; }
    void setHTMLKeywords(const QString& keywords) { iHTMLKeywords = keywords; }
    QString HTMLDescription() const { return iHTMLDescription; }
    void setHTMLDescription(const QString& text) { iHTMLDescription = text; }
    // Stored for callers; the page doesn't use the two scripts.
    QString HTMLScript() const { return iHTMLScript; }
    void setHTMLScript(const QString& script) { iHTMLScript = script; }
    QString otherScript() const { return iOtherScript; }
    void setOtherScript(const QString& script) { iOtherScript = script; }

    // A page's template with values for its placeholders: "index.title", "meta.keywords",
    // "meta.description" and the places.
    TextTemplate filled(const QString& pageTemplate, const PagePlaces& places) const;

    // Fills in a UTF-8 template for a classic book and writes the page. An unreadable template
    // gives an empty page. On a failed write the old file is kept, false is returned and *error
    // (when given) set.
    bool generateHTMLFrom(const QString& templatePath, const QString& toFile,
                          Message* error = nullptr) const;

private:
    QString iHTMLTitle = QStringLiteral("PDF to Folvero");
    QString iHTMLKeywords = QStringLiteral("Folvero,page flip,flipbook,flip book");
    QString iHTMLDescription = QStringLiteral("A page-flip book made with Folvero");
    QString iHTMLScript = QStringLiteral("");
    QString iOtherScript = QStringLiteral("");
};
