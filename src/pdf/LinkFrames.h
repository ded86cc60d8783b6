#pragma once

#include <mupdf/fitz.h>
#include <mupdf/pdf.h>

// The frames around links that ask for one, which MuPDF does not draw.
namespace LinkFrames {

// Records the frames of all links of a page; null when none has a frame. The caller drops the list.
// Raises MuPDF errors.
fz_display_list* record(fz_context* ctx, pdf_obj* page);

} // namespace LinkFrames
