#pragma once

#include "util/PageRange.h"
#include "webbook/BookAddress.h"

#include <QString>
#include <optional>
#include <vector>

class FolveroOutputWeb;
struct PublishOptions;

// Options for web books only.
namespace WebBookOptions {

// Throws CommandError when one is used with another type of book, or --url is no address.
void check(const PublishOptions& options);

// The pages that a preview includes, by their numbers in the document, or none for all. range is
// the book's page range. Reports pages that the document lacks on standard error. Throws
// CommandError when no page of the book would be included.
std::optional<std::vector<PageRun>> openPages(const PublishOptions& options, const QString& range,
                                              int pageCount);

// Where the book will be; none without --url.
std::optional<BookAddress> address(const PublishOptions& options);

// Reports files in the book's folder that do not belong to this book and were left there.
void printLeftoverFiles(const PublishOptions& options, const FolveroOutputWeb& output);

// Prints the HTML that embeds the book in another page, on standard error.
void printEmbedSnippet(const FolveroOutputWeb& output);

} // namespace WebBookOptions
