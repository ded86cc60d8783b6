#pragma once

#include <functional>
#include <mupdf/fitz.h>

// What a section of a page draws.
struct PageSection {
    fz_display_list* list;
    fz_rect bounds;
    bool blends; // with what lies below it, other than by covering it
};

// Must not keep the list, nor raise MuPDF errors.
using TakeSection = std::function<void(const PageSection& section)>;

// A device that passes a page on to another one, but for the sections with effects that concern
// all that is drawn in them: clips other than to a filled path, soft masks, patterns. Each of these
// is recorded as a whole. The target and take must outlive the device. Drop it with
// fz_drop_device().
fz_device* newSectionRecorder(fz_context* ctx, fz_device* target, const TakeSection& take);
