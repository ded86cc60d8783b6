#include "pdf/PDFPage.h"

#include "pdf/AnnotationBudget.h"
#include "pdf/PDFEngine.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFReader.h"

namespace {

// MuPDF returns an inverted rectangle for a missing one, which becomes all zeros.
QRectF toRect(const fz_rect& rect) {
    if (!fz_is_valid_rect(rect))
        return {};
    return {rect.x0, rect.y0, double(rect.x1) - rect.x0, double(rect.y1) - rect.y0};
}

} // namespace

// An inheritable page box; empty when the page has none.
QRectF PDFPage::box(pdf_obj* key) const {
    const auto rect = iDocument->iEngine->get(
        [&](fz_context* ctx) {
            return pdf_to_rect(ctx, pdf_dict_get_inheritable(ctx, iObject, key));
        },
        fz_empty_rect);
    return fz_is_empty_rect(rect) ? QRectF() : toRect(rect);
}

QRectF PDFPage::mediaBox() const {
    if (iBoxes)
        return iBoxes->media;
    const QRectF media = box(PDF_NAME(MediaBox));
    return media.isEmpty() ? QRectF(0, 0, 612, 792) : media;
}

QRectF PDFPage::cropBox() const {
    if (iBoxes)
        return iBoxes->crop;
    const QRectF media = mediaBox();
    const QRectF crop = box(PDF_NAME(CropBox)).intersected(media);
    return crop.isEmpty() ? media : crop;
}

int PDFPage::rotation() const {
    if (iBoxes)
        return iBoxes->rotation;
    const int degrees = iDocument->iEngine->get(
        [this](fz_context* ctx) {
            return pdf_to_int(ctx, pdf_dict_get_inheritable(ctx, iObject, PDF_NAME(Rotate)));
        },
        0);
    return ((degrees % 360) + 360) % 360;
}

QSizeF PDFPage::displaySize() const {
    if (iBoxes) {
        if (!iBoxes->displayError.isNull())
            throw PlatformException(ErrorKind::pageUnreadable, iBoxes->displayError);
        return iBoxes->display;
    }
    fz_rect mediaBox = fz_empty_rect;
    iDocument->iEngine->run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        fz_matrix matrix;
        pdf_page_obj_transform(ctx, iObject, &mediaBox, &matrix);
        mediaBox = fz_transform_rect(mediaBox, matrix);
    });
    return toRect(mediaBox).size();
}

PDFPageBoxes PDFPage::boxes() const {
    if (iBoxes)
        return *iBoxes;
    PDFPageBoxes boxes{mediaBox(), cropBox(), rotation(), {}, {}};
    try {
        boxes.display = displaySize();
    } catch (const PlatformException& failure) {
        boxes.displayError = failure.reason();
    }
    return boxes;
}

std::vector<PDFAnnotation> PDFPage::annotations() const {
    if (iDocument->iReader)
        return iDocument->iReader->annotations(iIndex);
    const auto& engine = *iDocument->iEngine;
    pdf_obj* list = engine.entry(iObject, "Annots");
    const int count = engine.get([&](fz_context* ctx) { return pdf_array_len(ctx, list); }, 0);
    std::vector<PDFAnnotation> annotations;
    AnnotationBudget budget;
    for (int i = 0; i < count && !budget.isSpent(); ++i) {
        pdf_obj* object = engine.get([&](fz_context* ctx) { return pdf_array_get(ctx, list, i); },
                                     static_cast<pdf_obj*>(nullptr));
        PDFAnnotation annotation;
        annotation.type = engine.name(engine.entry(object, "Subtype"));
        pdf_obj* rect = engine.entry(object, "Rect");
        annotation.bounds =
            toRect(engine.get([&](fz_context* ctx) { return pdf_to_rect(ctx, rect); }, fz_rect{}));
        pdf_obj* action = engine.entry(object, "A");
        if (engine.name(engine.entry(action, "S")) == QStringLiteral("URI"))
            annotation.url = engine.text(engine.entry(action, "URI"));
        if (annotation.url.size() == PDFLimits::maxTextLength)
            annotation.url = QString(); // a truncated address would lead somewhere else
        annotation.destinationPage = engine.targetPage(object);
        budget.spend(annotation);
        annotations.push_back(std::move(annotation));
    }
    return annotations;
}
