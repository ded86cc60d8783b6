#pragma once

#include "pdf/PDFPage.h"

#include <cstddef>
#include <vector>

// Limits how many annotations are read from one document, and how many characters of text. All
// pages of a small file may refer to one long list or one long address, which would exhaust memory.
// Even the largest real books have only tens of thousands of links, a few megabytes in all.
class AnnotationBudget {
public:
    static constexpr std::size_t maxAnnotations = 250'000;
    static constexpr std::size_t maxCharacters = std::size_t{32} << 20;

    // Whether a limit has been reached; the remaining pages are then read without annotations.
    bool isSpent() const { return iAnnotations >= maxAnnotations || iCharacters >= maxCharacters; }

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
