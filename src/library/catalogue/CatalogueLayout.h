#pragma once

#include <QByteArray>
#include <QString>

// The paths of a catalogue's files in the library's folder. All pages and data are in one folder;
// only what browsers and search engines look for is at the top.
namespace CatalogueLayout {

inline const QByteArray home = "index.html";
inline const QByteArray sitemap = "sitemap.xml";
inline const QByteArray folder = "catalogue";
inline const QByteArray style = "catalogue/catalogue.css";
inline const QByteArray script = "catalogue/catalogue.js";
inline const QByteArray icon = "catalogue/icon.svg";
inline const QByteArray search = "catalogue/search.html";
inline const QByteArray atom = "catalogue/new.atom";
inline const QByteArray rss = "catalogue/new.rss";
inline const QByteArray oai = "catalogue/oai.xml";
inline const QByteArray opds = "catalogue/opds/index.xml";
inline const QByteArray iiif = "catalogue/iiif/collection.json";

// part: from 1
QByteArray sitemapPart(int part);

// The page with what is known of a book. In 256 folders, since file systems get slow with many
// files in one.
QByteArray bookPage(const QString& id);
// The same relative to the folder of all such pages, without extension.
QByteArray bookKey(const QString& id);

// The page, from 1, of a list, such as "title" or "author/goethe-3f2a9c1b".
QByteArray page(const QByteArray& list, int page);
// The same for a part of a feed or collection, below "opds" or "iiif".
QByteArray part(const QByteArray& list, int page, const char* extension);

// Data of the search: their names are relative to this folder and without extension.
inline const QByteArray index = "catalogue/index";
QByteArray data(const QByteArray& name);

// From a page to the library's folder: "../" as often as needed.
QByteArray up(const QByteArray& path);

// Lower-case words of ASCII joined by hyphens and a digest of the key: readable and different for
// different keys.
QByteArray slug(const QString& name, const QByteArray& key);

} // namespace CatalogueLayout
