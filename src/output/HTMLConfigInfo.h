#pragma once

#include "platform/Message.h"

#include <QString>

// What the HTML page of a book says about it.
class HTMLConfigInfo {
public:
    QString HTMLTitle() const { return iHTMLTitle; }
    void setHTMLTitle(const QString& title) { iHTMLTitle = title; }
    QString HTMLKeywords() const { return iHTMLKeywords; }
    void setHTMLKeywords(const QString& keywords) { iHTMLKeywords = keywords; }
    QString HTMLDescription() const { return iHTMLDescription; }
    void setHTMLDescription(const QString& text) { iHTMLDescription = text; }
    // Kept for callers; the page doesn't use the two scripts.
    QString HTMLScript() const { return iHTMLScript; }
    void setHTMLScript(const QString& script) { iHTMLScript = script; }
    QString otherScript() const { return iOtherScript; }
    void setOtherScript(const QString& script) { iOtherScript = script; }

    // Fills the placeholders "index.title", "meta.keywords" and "meta.description" of a template
    // file in UTF-8 and writes the page. A template that can't be read gives an empty page. On a
    // failed write the old file stays, false comes back and *error (when given) tells why.
    bool generateHTMLFrom(const QString& templatePath, const QString& toFile,
                          Message* error = nullptr) const;

private:
    QString iHTMLTitle = QStringLiteral("PDF to Folvero");
    QString iHTMLKeywords = QStringLiteral("Folvero,page flip,flipbook,flip book");
    QString iHTMLDescription = QStringLiteral("A page-flip book made with Folvero");
    QString iHTMLScript = QStringLiteral("");
    QString iOtherScript = QStringLiteral("");
};
