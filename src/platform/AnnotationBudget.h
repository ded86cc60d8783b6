#pragma once

#include "platform/PDFPage.h"

#include <cstddef>
#include <vector>

// How many annotations are taken from one document, and how much text in them. All pages of a small
// file may share one long list or one long address, which would take more memory than a machine
// has. The richest of real books have a few tens of thousands of links, of a few megabytes.
class AnnotationBudget {
public:
    static constexpr std::size_t mostAnnotations = 250'000;
    static constexpr std::size_t mostCharacters = std::size_t{32} << 20;

    // Whether further pages have to do without.
    bool isSpent() const {
        return iAnnotations >= mostAnnotations || iCharacters >= mostCharacters;
    }

    void spend(const PDFAnnotation& annotation) {
        ++iAnnotations;
        iCharacters += static_cast<std::size_t>(annotation.url.size());
    }
    void spend(const std::vector<PDFAnnotation>& annotations) {
        for (const PDFAnnotation& annotation : annotations)
            spend(annotation);
    }

private:
    std::size_t iAnnotations = 0;
    std::size_t iCharacters = 0;
};
