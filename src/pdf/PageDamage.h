#pragma once

#include "base/Message.h"

#include <QByteArray>
#include <string_view>

// What the document lacks of a page, as far as readers see it: the page was drawn without that.
struct PageDamage {
    bool images = false;
    bool fonts = false;
    bool data = false; // in a damaged stream, of the page's content or anything else

    bool isNone() const { return !images && !fonts && !data; }

    // Adds what a warning or an error of MuPDF means. Most mean nothing that shows.
    void add(std::string_view messageOfMuPDF);

    // For the protocol of page workers. Unknown words are ignored.
    QByteArray words() const;
    static PageDamage fromWords(const QByteArray& words);

    // For users; null when there is none.
    Message message() const;
};
