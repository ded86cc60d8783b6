#pragma once

#include <QByteArray>
#include <vector>

// Inputs that a harness starts from.
struct SeedSet {
    const char* harness;
    std::vector<QByteArray> seeds;
};

// Small texts and byte strings, one set for each harness but that of the PDF import.
std::vector<SeedSet> textSeeds();

// Small PDF files without compression, so that changed bytes mostly stay readable; sound and
// broken.
SeedSet documentSeeds();
