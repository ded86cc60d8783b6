#include "pdf/DrawablePDF.h"

#include "pdf/AnnotationBudget.h"
#include "pdf/PDFEngine.h"
#include "pdf/PDFLimits.h"
#include "pdf/PDFStructure.h"

namespace {

// MuPDF returns an inverted rectangle for a missing one, which becomes all zeros.
QRectF toRect(const fz_rect& rect) {
    if (!fz_is_valid_rect(rect))
        return {};
    return {rect.x0, rect.y0, double(rect.x1) - rect.x0, double(rect.y1) - rect.y0};
}

// An inheritable page box; empty when the page has none.
QRectF boxOf(const PDFEngine& engine, pdf_obj* page, pdf_obj* key) {
    const auto rect = engine.get(
        [&](fz_context* ctx) { return pdf_to_rect(ctx, pdf_dict_get_inheritable(ctx, page, key)); },
        fz_empty_rect);
    return fz_is_empty_rect(rect) ? QRectF() : toRect(rect);
}

int rotationOf(const PDFEngine& engine, pdf_obj* page) {
    const int degrees = engine.get(
        [&](fz_context* ctx) {
            return pdf_to_int(ctx, pdf_dict_get_inheritable(ctx, page, PDF_NAME(Rotate)));
        },
        0);
    return ((degrees % 360) + 360) % 360;
}

QSizeF displaySizeOf(const PDFEngine& engine, pdf_obj* page) {
    fz_rect shown = fz_empty_rect;
    engine.run(ErrorKind::pageUnreadable, [&](fz_context* ctx) {
        fz_matrix matrix;
        pdf_page_obj_transform(ctx, page, &shown, &matrix);
        shown = fz_transform_rect(shown, matrix);
    });
    return toRect(shown).size();
}

PDFAnnotation annotationFrom(const PDFEngine& engine, pdf_obj* object) {
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
    if (const auto target = engine.target(object)) {
        annotation.destinationPage = target->page;
        annotation.destinationAcross = target->across;
    }
    return annotation;
}

} // namespace

DrawablePDF::DrawablePDF(const QString& path, Access access, const QByteArray& password)
    : PDFDocument(path, password), iEngine(std::make_unique<PDFEngine>()) {
    iEngine->open(path, access == Access::mapped, password);
    iStructure = std::make_unique<PDFStructure>(*iEngine);
}

DrawablePDF::~DrawablePDF() = default;

int DrawablePDF::pageCount() const {
    return iEngine->pageCount;
}

std::vector<QSizeF> DrawablePDF::pageSizes() const {
    std::vector<QSizeF> sizes;
    for (int index = 0; index < pageCount(); ++index) {
        try {
            sizes.push_back(displaySizeOf(*iEngine, iEngine->pageObject(index)));
        } catch (const PlatformException&) {
            sizes.emplace_back();
        }
    }
    return sizes;
}

PDFPage DrawablePDF::page(int index) const {
    requirePage(index);
    pdf_obj* object = iEngine->pageObject(index);
    const QRectF media = boxOf(*iEngine, object, PDF_NAME(MediaBox));
    PDFPage page;
    page.mediaBox = media.isEmpty() ? QRectF(0, 0, 612, 792) : media;
    const QRectF crop = boxOf(*iEngine, object, PDF_NAME(CropBox)).intersected(page.mediaBox);
    page.cropBox = crop.isEmpty() ? page.mediaBox : crop;
    page.rotation = rotationOf(*iEngine, object);
    try {
        page.display = displaySizeOf(*iEngine, object);
    } catch (const PlatformException& failure) {
        page.displayError = failure.reason();
    }
    return page;
}

std::vector<PDFAnnotation> DrawablePDF::annotations(int index) const {
    requirePage(index);
    pdf_obj* list = iEngine->entry(iEngine->pageObject(index), "Annots");
    const int count = iEngine->get([&](fz_context* ctx) { return pdf_array_len(ctx, list); }, 0);
    std::vector<PDFAnnotation> annotations;
    AnnotationBudget budget;
    for (int i = 0; i < count && !budget.isSpent(); ++i) {
        annotations.push_back(annotationFrom(*iEngine, iEngine->object([&](fz_context* ctx) {
            return pdf_array_get(ctx, list, i);
        })));
        budget.spend(annotations.back());
    }
    return annotations;
}

QString DrawablePDF::information(const char* key) const {
    return iEngine->text(iEngine->entry(iEngine->trailerEntry("Info"), key));
}

PDFViewing DrawablePDF::viewing() const {
    pdf_obj* root = iEngine->trailerEntry("Root");
    pdf_obj* preferences = iEngine->entry(root, "ViewerPreferences");
    PDFViewing viewing;
    viewing.rightToLeft =
        iEngine->name(iEngine->entry(preferences, "Direction")) == QStringLiteral("R2L");
    viewing.allowsText =
        iEngine->isOwner ||
        iEngine->get(
            [&](fz_context* ctx) {
                return pdf_has_permission(ctx, iEngine->document, FZ_PERMISSION_COPY);
            },
            1) != 0;
    viewing.pageMode = iEngine->name(iEngine->entry(root, "PageMode"));
    if (const auto target = iEngine->openTarget())
        viewing.openPage = target->page;
    return viewing;
}

QString DrawablePDF::language() const {
    return iEngine->text(iEngine->entry(iEngine->trailerEntry("Root"), "Lang"));
}
