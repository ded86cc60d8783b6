#include "Documents.h"

#include "Samples.h"

std::vector<Sample> documentSamples() {
    return {{"novel.pdf", makeNovel},
            {"picture-book.pdf", makePictureBook},
            {"slides.pdf", makeSlides}};
}
