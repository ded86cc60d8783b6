#pragma once

#include <QString>

class QMessageBox;

// Shows texts that others wrote (names of files, texts of templates and documents, causes of
// failures) as they stand: the toolkit otherwise takes what looks like markup for markup.
namespace PlainText {

// The text for a tool tip.
QString toolTip(const QString& text);

// Both texts of a message box. Its informative text has to be set before.
void show(QMessageBox& box);

} // namespace PlainText
