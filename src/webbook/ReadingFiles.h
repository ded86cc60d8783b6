#pragma once

#include "webbook/reading/ReadingBlock.h"

#include <QByteArray>
#include <functional>
#include <vector>

// The structure of a book's text in the format of the web book's player.
namespace ReadingFiles {

// Writes a part, numbered from 1.
using Write = std::function<void(int part, const QByteArray& json)>;

// Divides the blocks into parts that a reader need not wait for. Returns the positions of the pages
// at which the parts begin; empty for a book without text.
std::vector<int> write(const std::vector<ReadingBlock>& blocks, const Write& write);

} // namespace ReadingFiles
