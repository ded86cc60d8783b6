#pragma once

#include "webbook/reading/ReadingBlock.h"

#include <QByteArray>
#include <QJsonArray>
#include <functional>
#include <map>
#include <vector>

// The structure of a book's text in the format of the web book's player.
namespace ReadingFiles {

// Writes a part, numbered from 1.
using Write = std::function<void(int part, const QByteArray& json)>;

// Divides the blocks into parts that a reader need not wait for. Returns the positions of the pages
// at which the parts begin; empty for a book without text.
std::vector<int> write(const std::vector<ReadingBlock>& blocks, const Write& write);

// What the lines of each page are parts of, by the page's position: the kind of a block as in these
// files and how many lines it has, in turn, from the page's first line on. Lines of no block, such
// as running heads, have an empty kind; those behind the last block have none.
std::map<int, QJsonArray> blocksOfPages(const std::vector<ReadingBlock>& blocks);

} // namespace ReadingFiles
