#pragma once

class BookLayout;
struct PublishTarget;
struct WebBook;

// Files that make a web book available offline: its service worker, the list of files that it
// caches, and the web app manifest with its icon, for installing the book.
namespace OfflineFiles {

// Whether the files may be written to the folder: false when it contains those of another site.
bool canWriteTo(const BookLayout& book);

// Stages them, unless the book's metadata rules it out. The list contains what the run writes, so
// call it last.
void write(PublishTarget& to, const WebBook& book);

} // namespace OfflineFiles
