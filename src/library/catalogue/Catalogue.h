#pragma once

#include "library/catalogue/CatalogueSettings.h"

#include <QtGlobal>
#include <functional>

class LibraryLayout;

// The site over the books of a library: pages, a search and feeds.
namespace Catalogue {

struct Outcome {
    int books = 0;
    int files = 0;   // of the catalogue
    int written = 0; // new or changed ones
    int removed = 0;
    qint64 bytes = 0; // of all files
    bool hasFeeds = false;
    bool hasRepository = false; // of OAI-PMH
};

struct Callbacks {
    std::function<void(int done, int total)> progress;
    // Called before each file; throws to cancel, which leaves a working site.
    std::function<void()> beforeFile;
};

// Makes it, or brings it up to date. The settings are complete. Throws PlatformException for errors
// of the disk, and when a file is there already that no catalogue wrote, unless force is set.
Outcome make(const LibraryLayout& library, const CatalogueSettings& settings, bool force,
             const Callbacks& callbacks);

} // namespace Catalogue
