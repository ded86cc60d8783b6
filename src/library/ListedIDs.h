#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <QString>
#include <functional>

class BookList;
class LibraryLayout;

// The IDs of the list that a library was made from last, so that its status shows which books are
// missing.
namespace ListedIDs {

// Writes those of a list with this digest, unless they are there. Why that failed, or a null
// message.
Message write(const LibraryLayout& to, BookList& list, const QByteArray& digest);

// The digest of the list; empty when there are none.
QByteArray digest(const LibraryLayout& library);

// Calls visit with each ID in the order of the list, those on several lines more than once.
void forEach(const LibraryLayout& library, const std::function<void(const QString&)>& visit);

} // namespace ListedIDs
