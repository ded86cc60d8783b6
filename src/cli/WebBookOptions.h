#pragma once

#include "pages/PageRange.h"

#include <QString>
#include <optional>
#include <vector>

class FolveroOutputWeb;
struct PublishOptions;

// What can be asked of web books only.
namespace WebBookOptions {

// Throws CommandError when it is asked of a book of another kind.
void check(const PublishOptions& options);

// The pages that a preview opens, by their numbers in the document, or none when all are open.
// range: the pages that the book takes. What the document lacks is told on standard error. Throws
// CommandError when no page of the book would be open.
std::optional<std::vector<PageRun>> openPages(const PublishOptions& options, const QString& range,
                                              int pageCount);

// On standard error: files in the book's folder that are not of this book and were left there.
void printLeftoverFiles(const PublishOptions& options, const FolveroOutputWeb& output);

// On standard error: the markup that shows the book in another page.
void printEmbedSnippet(const FolveroOutputWeb& output);

} // namespace WebBookOptions
