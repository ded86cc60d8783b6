#pragma once

#include <QString>

// The example book's words, as the HTML that a text document lays out.
namespace BookText {

inline const QString kTitle = QStringLiteral("The Turning Page");
inline const QString kSubtitle = QStringLiteral("A small book about books that turn");

QString styleSheet();
QString turningPage();
QString documentToBook();
QString pictures();
QString figures();

} // namespace BookText
