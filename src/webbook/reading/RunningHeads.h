#pragma once

#include "webbook/reading/ReadingLine.h"

// Heads and feet that recur from page to page, with their pictures, and page numbers.
namespace RunningHeads {

// Takes them out of all pages of a book, in book order.
void remove(std::vector<ReadingPage>& pages);

} // namespace RunningHeads
