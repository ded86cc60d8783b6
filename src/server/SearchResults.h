#pragma once

#include "library/search/PageHit.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <vector>

// A page of results of a search of a library.
struct SearchResults {
    // Of the HTML page, which has no scripts and loads nothing.
    static inline const QByteArray contentPolicy =
        "default-src 'none'; style-src 'unsafe-inline'; form-action 'self'; base-uri 'none'; "
        "frame-ancestors 'none'";

    QString typed;
    QString book; // ID of the only one that is searched; empty for all
    int page = 1; // one-based
    int pageSize = 0;
    int lastPage = 0; // that may be asked for
    qint64 total = 0; // pages of books
    bool isMore = false;
    bool isTooLong = false;
    bool hasIndex = true;
    bool hasCatalogue = false;
    std::vector<PageHit> hits;

    QJsonObject asJson() const;
    QByteArray asPage() const;

private:
    QByteArray status() const;
    QByteArray linkTo(int otherPage, const QByteArray& words) const;
};
