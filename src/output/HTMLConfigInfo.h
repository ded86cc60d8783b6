#pragma once

#include "base/Message.h"

#include <QString>

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

    // Fills in the placeholders "index.title", "meta.keywords" and "meta.description" of a UTF-8
    // template and writes the page. An unreadable template gives an empty page. On a failed write
    // the old file is kept, false is returned and *error (when given) set.
    bool generateHTMLFrom(const QString& templatePath, const QString& toFile,
                          Message* error = nullptr) const;

private:
    QString iHTMLTitle = QStringLiteral("PDF to Folvero");
    QString iHTMLKeywords = QStringLiteral("Folvero,page flip,flipbook,flip book");
    QString iHTMLDescription = QStringLiteral("A page-flip book made with Folvero");
    QString iHTMLScript = QStringLiteral("");
    QString iOtherScript = QStringLiteral("");
};
