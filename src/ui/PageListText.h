#pragma once

#include <QString>
#include <vector>

namespace PageListText {

// Names pages in the user's language: runs in short, and of many only the first, as in "3 to 9, 14
// and 50 more". The numbers are sorted.
QString of(const std::vector<int>& pages);

} // namespace PageListText
