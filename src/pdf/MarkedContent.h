#pragma once

#include <QString>
#include <mupdf/fitz.h>
#include <mupdf/pdf.h>
#include <vector>

// Tells which marked content of a tagged page its text lies in. MuPDF's devices are not told, so
// the page is interpreted once more, for its text alone, by a processor whose operators for marked
// content are ours. A mark travels through the device that collects text as the colour of letters.
class MarkedContent {
public:
    struct Mark {
        int stream = 0; // object number of the form that it is in; 0 for the page itself
        int id = -1;    // as the structure tree names it there; -1 for none
        bool isArtifact = false;
        QString replacement;            // what its letters stand for; null for themselves
        fz_rect images = fz_empty_rect; // what they cover, in the space of the page's display list
    };

    // Passes the page's text to the device. Raises MuPDF errors.
    void interpret(fz_context* ctx, pdf_page* page, fz_device* text, fz_cookie* cookie);

    // In the order in which they begin. The first one stands for text outside of all.
    const std::vector<Mark>& marks() const { return iMarks; }
    std::vector<Mark>& marks() { return iMarks; }
    // The number of a letter's mark.
    std::size_t markOf(const fz_stext_char& letter) const;

private:
    struct Operators;
    struct TextDevice;

    void open(const char* tag, int id, const char* replacement);
    void close();
    int current() const { return iOpen.empty() ? 0 : iOpen.back(); }

    std::vector<Mark> iMarks{1};
    std::vector<int> iOpen; // those that have begun, by their numbers
    std::size_t iTooDeep = 0;
    std::size_t iBase = 0; // how many of the open ones a form can't close
    int iStream = 0;
    qsizetype iReplacements = 0; // characters in all of them
    pdf_processor iOriginal{};   // MuPDF's operators
};
