#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSize>
#include <QString>
#include <map>
#include <optional>
#include <vector>

// Writes small PDF files with exactly the structure a test needs, valid or not.
//
// All lengths are points; the origin is the lower left corner, so a rectangle's x() and y() are its
// lower left corner and it grows upwards. Page indexes are zero-based and may point at pages that
// are added later. PDF syntax (dictionary entries, content) is passed as bytes and copied
// unchanged. The same calls always yield the same bytes.
class PDFBuilder {
public:
    enum class Compression { None, Flate };

    // What a page may also inherit from the node above it.
    struct PageAttributes {
        std::optional<QRectF> mediaBox = {};
        std::optional<QRectF> cropBox = {};
        std::optional<int> rotate = {};
        std::map<QByteArray, QByteArray> fonts = {}; // resource name -> standard font
        std::map<QByteArray, int> fontObjects = {};  // resource name -> object number
        std::map<QByteArray, int> xObjects = {};     // resource name -> object number
        QByteArray resources = {};                   // further entries of the resource dictionary
    };

    struct Page : PageAttributes {
        std::optional<double> userUnit = {};
        QByteArray content = {};
        Compression compression = Compression::None;
        std::vector<QByteArray> annotations = {}; // dictionaries, as the functions below make them
        QByteArray extraEntries = {};             // further entries of the page dictionary
    };

    struct OutlineEntry {
        QString title;
        // "/Dest ..." or "/A ..." as the functions below make them, or nothing.
        QByteArray target = {};
        std::vector<OutlineEntry> children = {};
    };

    // A page of that size whose lower left corner is the origin.
    static Page page(const QSizeF& size, const QByteArray& content = {},
                     std::vector<QByteArray> annotations = {});
    // A whole document of that many empty pages.
    static QByteArray blank(int pages, const QSizeF& size);

    // -- Objects. Numbers are counted from 1.
    int reserveObject();
    int addObject(const QByteArray& body);
    void setObject(int number, const QByteArray& body);
    // The dictionary's entries without Length and Filter, which are added here.
    int addStream(const QByteArray& entries, const QByteArray& data,
                  Compression compression = Compression::None);
    // A stream with a complete dictionary, Length and Filter included.
    void setRawStream(int number, const QByteArray& dictionary, const QByteArray& data);
    static QByteArray reference(int number);
    static QByteArray rectangle(const QRectF& rect);
    // A text string of any characters.
    static QByteArray text(const QString& text);

    // -- Images: rows from the top down, without padding. They return an object number.
    int addGrayImage(QSize size, const QByteArray& pixels);
    int addRGBImage(QSize size, const QByteArray& pixels);
    // A JPEG file of 1 or 3 components as an image.
    int addJPEGImage(QSize size, int components, const QByteArray& jpeg);
    static QByteArray encodeJPEG(QSize size, int components, const QByteArray& pixels, int quality);

    // -- Pages
    // Returns the new page's index.
    int addPage(const Page& page);
    // A page in the page tree whose object does not exist in the file.
    int addMissingPage();
    void setInherited(const PageAttributes& attributes);
    // The object number of a page that exists or will.
    int pageObject(int index);
    // Sets the page labels from a page on, e.g. "/S /r" or "/S /D /St 1".
    void setPageLabels(int firstPage, const QByteArray& entries);

    // -- Destinations: the value of a Dest entry
    QByteArray destination(int page);
    QByteArray destination(int page, double left, double top);
    void addNamedDestination(const QByteArray& name, const QByteArray& destination);
    // In the catalog's Dests dictionary, where files before PDF 1.2 keep them; named as "/name".
    void addOldNamedDestination(const QByteArray& name, const QByteArray& destination);

    // -- What a link or an outline entry points at: entries of its dictionary
    static QByteArray toURL(const QByteArray& url);
    static QByteArray toDestination(const QByteArray& destination);
    static QByteArray toDestinationByAction(const QByteArray& destination);
    static QByteArray toName(const QByteArray& name);
    static QByteArray toOldName(const QByteArray& name);

    // -- Annotations. A link may have several targets' entries joined, or none.
    static QByteArray link(const QRectF& rect, const QByteArray& target);
    // "Text", "Square" and so on.
    static QByteArray annotation(const QByteArray& subtype, const QRectF& rect,
                                 const QByteArray& extraEntries = {});

    // -- Document
    void setInfo(const QByteArray& key, const QString& value);
    void setOutline(std::vector<OutlineEntry> entries);
    void addCatalogEntries(const QByteArray& entries);
    // Standard security handler, 40-bit RC4. An empty user password opens without asking, and then
    // with these permissions, all by default.
    void encrypt(const QByteArray& userPassword, const QByteArray& ownerPassword,
                 qint32 permissions = -4);

    QByteArray build() const;
    bool write(const QString& path) const;

private:
    struct Object {
        QByteArray body;
        std::optional<QByteArray> stream;
    };
    struct Passwords {
        QByteArray user;
        QByteArray owner;
        qint32 permissions;
    };

    int addImage(QSize size, int components, const QByteArray& entries, const QByteArray& data,
                 Compression compression);
    int standardFont(const QByteArray& name);
    QByteArray attributeEntries(const PageAttributes& attributes);
    void addOutlineLevel(const std::vector<OutlineEntry>& entries, int parent, int& count,
                         QByteArray& entriesOfParent);
    QByteArray pagesDictionary() const;
    QByteArray catalog() const;
    QByteArray names() const;

    std::map<int, Object> iObjects;
    int iLastNumber = 2; // 1 is the catalog, 2 the root of the page tree
    std::vector<int> iPageNumbers;
    int iPageCount = 0;
    QByteArray iInheritedEntries;
    std::map<QByteArray, int> iStandardFonts;
    std::map<QByteArray, QByteArray> iNamedDestinations;
    std::map<QByteArray, QByteArray> iOldNamedDestinations;
    std::map<int, QByteArray> iPageLabels;
    std::map<QByteArray, QByteArray> iInfo;
    std::optional<int> iOutline;
    QByteArray iCatalogEntries;
    std::optional<Passwords> iPasswords;
};
