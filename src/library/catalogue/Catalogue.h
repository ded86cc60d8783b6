#pragma once

#include "library/catalogue/CatalogueSettings.h"

#include <QtGlobal>
#include <chrono>
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
};

struct Options {
    bool force = false; // overwrite files that no catalogue wrote
    // How long to wait while another catalogue is made in the library.
    std::chrono::seconds patience{0};
};

struct Callbacks {
    std::function<void(int done, int total)> progress;
    // Called before each file and while waiting; throws to cancel, which leaves a working site.
    std::function<void()> beforeFile;
};

// Makes it, or brings it up to date. The settings are complete. Throws PlatformException for errors
// of the disk, and when a file is there already that no catalogue wrote, unless force is set.
Outcome make(const LibraryLayout& library, const CatalogueSettings& settings,
             const Options& options, const Callbacks& callbacks);

} // namespace Catalogue
