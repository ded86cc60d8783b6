#pragma once

#include <QStringList>

// Detects the book that an earlier publish wrote to a folder. Books of all versions of Folvero are
// recognised.
namespace ExistingBook {

// By these the files of a web book are recognised, so they must not change: how its service worker
// begins, and a part of its page of plain text.
inline constexpr char serviceWorkerStart[] = "const BOOK = {\"page\":";
inline constexpr char textPageMark[] =
    "\">\n<style>body{max-width:42em;margin:2em auto;padding:0 1em;";

// Whether a book's folder contains the configuration of one.
bool isIn(const QString& folder);
// Whether it belongs to a web book.
bool isWebBookIn(const QString& folder);

// Paths, relative to the folder, of all files that its pages may have and, for a web book,
// of its additional files. Taken from the book's own configuration, so that no other files are
// included; empty when that can't be read.
QStringList files(const QString& folder);

// Paths, relative to the folder, of the files in a folder of BookLayout whose names are like those
// of a book's.
QStringList filesNamedAsIn(const QString& folder, const QString& inFiles);

// Whether a file is the HTML page of a book, including that of a single-file book. The page with
// the book's text is not.
bool isPage(const QString& file);

// Whether a folder's book has the imported document to download.
bool offersDocument(const QString& folder);

// Whether a file has the player's texts of a language, or of several.
bool isLanguages(const QString& file);

// Whether a file is the page of plain text of a web book.
bool isTextPage(const QString& file);

// Whether a file is the IIIF manifest of a web book: its pictures lie where those of a book do.
bool isIIIFManifest(const QString& file);

// The name of the HTML page of the web book whose service worker is in a folder; null when there is
// none, or another site's.
QString pageOfServiceWorker(const QString& folder);

// Names of the HTML pages of books in a folder, sorted, but "index.html" first.
QStringList pages(const QString& folder);

// The book's title as plain text, from its HTML page; null when the file is no such page.
QString title(const QString& page);

} // namespace ExistingBook
