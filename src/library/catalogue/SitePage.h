#pragma once

#include <QByteArray>
#include <cstdint>

struct CatalogueBook;
struct CatalogueSite;

// A page of the catalogue: its head, what is above and below of all pages, and what it has itself.
class SitePage {
public:
    // path: in the library's folder
    SitePage(const CatalogueSite& site, QByteArray path);

    // The address from this page of a file in the library's folder.
    QByteArray to(const QByteArray& path) const { return iUp + path; }

    QByteArray title;   // HTML; the library's is added
    QByteArray head;    // markup for the end of the head
    QByteArray main;    // all that is between header and footer
    QByteArray section; // the entry of the menu that this page belongs to, such as "title"
    bool isHome = false;
    bool isSearch = false;
    bool isListed = true; // by search engines

    void write() const;

    // A link with the cover, title, author and year of a book, as an item of a list.
    QByteArray card(std::uint32_t number, const QByteArray& id = {}) const;
    // The picture of the cover's page, or a drawn cover with the title.
    QByteArray largeCover(const CatalogueBook& book) const;
    // The field for a search.
    QByteArray searchForm(const QByteArray& style) const;
    // Links to the other pages of a list, from 1 to count; empty for one page.
    QByteArray pager(const QByteArray& list, int page, int count) const;

private:
    // A part that other pages of the same depth have alike.
    QByteArray alike(const QByteArray& what, QByteArray (SitePage::*make)() const) const;
    QByteArray start() const;
    QByteArray header() const;
    QByteArray makeCard(const CatalogueBook& book) const;
    QByteArray feedLinks() const;
    QByteArray menu() const;
    QByteArray footer() const;

    const CatalogueSite& iSite;
    QByteArray iPath;
    QByteArray iUp;
};
