#pragma once

#include <QString>
#include <QStringList>

// The paths of a published book's files. Only the HTML page is not among them: the user names it.
//
// Constants and static functions give paths relative to the book's folder, as in addresses. Numbers
// are those of pages in the PDF, one-based.
class BookLayout {
public:
    // Of the HTML page, unless the user names it.
    static inline const QString defaultPage = QStringLiteral("index.html");

    // Folders: the first in the book's folder, all others in the first.
    static inline const QString files = QStringLiteral("files");
    static inline const QString pages = QStringLiteral("page");
    static inline const QString largePages = QStringLiteral("large");
    static inline const QString thumbnails = QStringLiteral("thumb");
    static inline const QString texts = QStringLiteral("text");
    static inline const QString search = QStringLiteral("search");
    static inline const QString reading = QStringLiteral("reading");
    static inline const QString webData = QStringLiteral("web");
    static inline const QString settingsFiles = QStringLiteral("extfiles");
    static inline const QString linkedFiles = QStringLiteral("pageConfig");
    static inline const QString languages = QStringLiteral("languages");

    // Every book.
    static inline const QString configuration = QStringLiteral("files/UserConfig.bin");
    static inline const QString configurationScript = QStringLiteral("files/UserConfig.js");
    // The PDF that readers may download.
    static inline const QString document = QStringLiteral("files/extfiles/document.pdf");
    // Of books of earlier versions: the texts of many languages, which are in a folder now.
    static inline const QString languageScript = QStringLiteral("files/languages.js");
    static inline const QString sound = QStringLiteral("files/extfiles/moveSound.mp3");
    // Books for the Flash player.
    static inline const QString movie = QStringLiteral("book.swf");
    // Web books. Script and style of the template's page, and what these have beside them.
    static inline const QString pageScript = QStringLiteral("files/page.js");
    static inline const QString pageStyle = QStringLiteral("files/page.css");
    static inline const QString webScript = QStringLiteral("files/web.js");
    static inline const QString vectorScript = QStringLiteral("files/vectors.js");
    static inline const QString readingScript = QStringLiteral("files/reading.js");
    static inline const QString singleScript = QStringLiteral("files/single.js");
    static inline const QString notesScript = QStringLiteral("files/notes.js");
    static inline const QString contentsScript = QStringLiteral("files/contents.js");
    static inline const QString searchScript = QStringLiteral("files/search.js");
    static inline const QString webStyle = QStringLiteral("files/web.css");
    static inline const QString metadata = QStringLiteral("files/web/book.js");
    static inline const QString searchText = QStringLiteral("files/search/text.js");
    static inline const QString textPage = QStringLiteral("text.html");
    static inline const QString shareImage = QStringLiteral("files/web/share.jpg");
    static inline const QString iiifManifest = QStringLiteral("manifest.json");
    // Web books that are courses.
    static inline const QString courseScript = QStringLiteral("files/web/course.js");
    // Web books that readers can save.
    static inline const QString offlineScript = QStringLiteral("files/web/offline.js");
    static inline const QString offlineList = QStringLiteral("files/web/offline.json");
    static inline const QString icon = QStringLiteral("files/web/icon.svg");
    static inline const QString serviceWorker = QStringLiteral("sw.js");
    static inline const QString manifest = QStringLiteral("manifest.webmanifest");

    // A file of one of the folders.
    static QString in(const QString& folder, const QString& name);
    static QString page(int number, const QString& extension);
    static QString thumbnail(int number);
    // A picture, or "js" for data that hold one.
    static QString largePage(int number, const QString& extension);
    static QString text(int number);
    // A part of the text for searching, from 0.
    static QString searchPart(int part);
    // A part of the text's structure, from 1.
    static QString readingPart(int part);
    // A part of the list of files that readers can save.
    static QString offlinePart(int part);

    // What else a web book may have for a page, beside its picture.
    static QStringList webFilesOfPage(int number);
    // The files of a web book that belong to no page; the last is the one by which it is
    // recognised.
    static QStringList webFiles();
    // Scripts of the player of every web book that are loaded when they are first used.
    static QStringList laterScripts();
    // Scripts and styles that the HTML page of a web book loads.
    static QStringList filesOfHTMLPage();
    // Those that let readers save it.
    static QStringList offlineFiles();
    // A regular expression for the names of files in a folder whose files are named by numbers or,
    // in "languages", by codes.
    static QString namesIn(const QString& folder);
    // The number of the page whose picture has this path; 0 for other paths.
    static int numberOfPage(const QString& path);

    // Whether the path is that of a file in the folder.
    static bool isIn(const QString& folder, const QString& path);
    // Whether the path is that of data for the player of a web book.
    static bool isData(const QString& path);
    // A path relative to "files", as in the configuration; null when the file lies elsewhere.
    static QString inFiles(const QString& path);
    // The same without extension, by which the player asks for data.
    static QString dataName(const QString& path);

    // The book's own folder; empty for the current one.
    explicit BookLayout(const QString& folder) : iFolder(folder) {}
    QString folder() const { return iFolder; }
    // The full path of a file or folder of this book.
    QString at(const QString& path) const;
    QString at(const QString& folder, const QString& name) const { return at(in(folder, name)); }

private:
    QString iFolder;
};
