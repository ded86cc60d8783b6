#pragma once

#include "base/Message.h"

#include <QString>

class LibraryLayout;

// What a catalogue is made with. A later run uses again what it is not given.
struct CatalogueSettings {
    QString title;    // of the library
    QString language; // of the pages: "en"
    QString address;  // absolute, of the library's folder on the web; ends in a slash
    QString contact;  // mail address for harvesters
    QString gateway;  // address of the gateway through which harvesters read

    // Null texts are filled from the earlier run, and then from the defaults.
    static CatalogueSettings completed(const CatalogueSettings& given,
                                       const LibraryLayout& library);
    // Why that failed, or null.
    Message remember(const LibraryLayout& library) const;
};
