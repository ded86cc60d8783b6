#pragma once

#include "library/catalogue/CatalogueSettings.h"

#include <chrono>

class LibraryLayout;
struct LibraryCatalogueOptions;

// The catalogue of a library, as commands make it.
namespace LibraryCatalogue {

struct How {
    bool force = false; // overwrite files that are not of a catalogue
    bool quiet = false; // show no progress
    // How long to wait for another run that is making the catalogue.
    std::chrono::seconds patience{0};
};

// The options and, where these are null, what the last run was given. Throws CommandError.
CatalogueSettings settings(const LibraryCatalogueOptions& options, const LibraryLayout& library);

// Makes the pages, search and feeds over the books of a library. Throws CommandError.
void make(const LibraryLayout& library, const CatalogueSettings& settings, const How& how);

// The command.
void run(const LibraryCatalogueOptions& options);

} // namespace LibraryCatalogue
