#pragma once

#include <QString>

class QMessageBox;

// Shows texts from outside (file names, texts of templates and documents, error causes) literally:
// Qt otherwise interprets text that looks like markup.
namespace PlainText {

// Converts a text for a tool tip.
QString toolTip(const QString& text);

// Makes a message box show both of its texts literally. Set its informative text first.
void show(QMessageBox& box);

} // namespace PlainText
