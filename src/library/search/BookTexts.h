#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QRectF>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

// The words of a page of a web book, with their places.
class PageWords {
public:
    PageWords() = default;
    // From the data of the page's file, whatever these are.
    explicit PageWords(const QJsonObject& data);

    // Of the page as displayed, in points.
    QSizeF size() const { return iSize; }
    // All lines, separated by line feeds, as in the text for searching.
    const QString& text() const { return iText; }
    // Where a part of the text is on the page, in points from its top left corner: a box for each
    // line.
    std::vector<QRectF> boxesOf(qsizetype from, qsizetype to) const;

private:
    struct Place {
        QRectF line;  // in tenths of a point, as the others
        double start; // along the line
        double length;
        qsizetype at; // in the text
        qsizetype letters;
        bool isUpright;
        bool isBackward; // from the far end
        std::size_t lineNumber;
    };

    QSizeF iSize;
    QString iText;
    std::vector<Place> iWords;
};

// The texts of a published web book, from its own files.
class BookTexts {
public:
    // The book's folder.
    explicit BookTexts(const QString& folder);

    // Whether there is a web book with its data.
    bool isThere() const { return iIsThere; }
    // Calls visit with the text of each page that has one, by its one-based position, up to the
    // number of pages. False when some text can't be read.
    bool forEachPage(int pages, const std::function<void(int, const QString&)>& visit) const;
    // What the page is called; empty when that is its position.
    QString label(int position) const;
    // None when the page has no words, or they can't be read.
    std::optional<PageWords> page(int position) const;

private:
    QByteArray json(const QString& path) const;

    QString iFolder;
    QJsonObject iData;
    bool iIsThere = false;
};
