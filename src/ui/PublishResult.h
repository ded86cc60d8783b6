#pragma once

#include <QString>

// A book that was published.
struct PublishResult {
    QString file;  // to open it, or an application
    QString title; // plain text
    // Of a web book: the address of its page, and the text that embeds it in another one. Empty
    // where the address is unknown.
    QString link;
    QString embed;
};
