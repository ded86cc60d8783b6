#pragma once

#include <QByteArray>
#include <QString>

// Pieces of HTML pages.
namespace Markup {

// The text for elements and attributes, without characters that pages may not hold.
QByteArray escaped(const QString& text);

// A path for addresses in attributes, percent-encoded.
QByteArray path(const QString& path);

// " lang=…" for the language of a text; empty where that is unknown, no tag, or that of the page.
QByteArray lang(const QString& tag, const QString& page);

} // namespace Markup
