#pragma once

#include "library/LibraryLayout.h"

#include <QString>

// The files of a library's full text index: segments, each a SQLite database with the books of
// certain groups of results. A book is in one segment only, so machines can make different ones at
// the same time, and nothing has to be merged.
namespace SearchSegments {

constexpr int count = 16;
constexpr int groups = LibraryLayout::resultGroups / count; // of each

// Their contents. The text itself is not kept, so nothing can be deleted from the table of pages:
// pages that belong to no book of the other table are dead. A page's row has the number of its
// book's first page, plus its position, less 1.
//
// The words come from SearchWords, separated by blanks: FTS5 has nothing to do but to split them.
constexpr auto schema =
    "CREATE VIRTUAL TABLE pages USING fts5(words, parts, content='', tokenize='ascii');"
    "CREATE TABLE books(first INTEGER PRIMARY KEY, pages INTEGER NOT NULL,"
    " id TEXT NOT NULL UNIQUE, stamp TEXT NOT NULL);"
    "CREATE TABLE state(next INTEGER NOT NULL);" // the row after the last one ever used
    "INSERT INTO state VALUES(1);";

// Changes with the schema and with what SearchWords makes of a text: others are made anew.
constexpr int version = 1;

inline QString file(const LibraryLayout& library, int segment) {
    return library.searchIndex() + QStringLiteral("/%1.db").arg(segment, 1, 16);
}

inline int ofBook(const QString& id) {
    return LibraryLayout::resultGroupOf(id) / groups;
}

} // namespace SearchSegments
