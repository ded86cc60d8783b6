#pragma once

#include <QString>

class OutputWindow;

// What the publish sheet proposes for a document: what it was last published with, or the most
// likely texts.
namespace PublishProposal {

// document: its path, empty for the demo book. Texts that were typed for another document are
// replaced: this one must not end up in that one's folder or under its title.
void fill(OutputWindow& sheet, const QString& document, const QString& documentName,
          bool isOtherDocument);

// After a publish. place: what it replaces as a whole.
void remember(const OutputWindow& sheet, const QString& document, const QString& place);

} // namespace PublishProposal
