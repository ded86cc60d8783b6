#include "pdf/PDFEngine.h"

#include "base/Log.h"
#include "pdf/PDFFile.h"
#include "pdf/PDFLimits.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr Log engineLog("PDFEngine");

// Counts what MuPDF allocates and refuses to exceed the limit. MuPDF then empties its store and
// tries again before it reports an error.
void* limitedRealloc(void* user, void* old, std::size_t size) {
    auto& held = *static_cast<std::size_t*>(user);
    const std::size_t before = old ? ::malloc_usable_size(old) : 0;
    if (held - before + size > PDFLimits::maxMuPDFMemory)
        return nullptr;
    void* memory = std::realloc(old, size);
    if (memory)
        held += ::malloc_usable_size(memory) - before;
    return memory;
}

void* limitedMalloc(void* user, std::size_t size) {
    return limitedRealloc(user, nullptr, size);
}

void countedFree(void* user, void* memory) {
    if (!memory)
        return;
    *static_cast<std::size_t*>(user) -= ::malloc_usable_size(memory);
    std::free(memory);
}

bool hasPDFHeader(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(1024).contains("%PDF-");
}

} // namespace

PDFEngine::PDFEngine() {
    const fz_alloc_context allocator{&allocated, limitedMalloc, limitedRealloc, countedFree};
    context = fz_new_context(&allocator, nullptr, PDFLimits::maxStoreSize);
    if (!context)
        throw std::bad_alloc();
    fz_set_warning_callback(context, readMessage, this);
    fz_set_error_callback(context, readMessage, this);
}

PDFEngine::~PDFEngine() {
    pdf_drop_document(context, document);
    fz_drop_context(context);
    if (mapping)
        ::munmap(mapping, mappingSize);
}

// Called from MuPDF's C code, so no exception may escape.
void PDFEngine::readMessage(void* engine, const char* message) noexcept {
    static_cast<PDFEngine*>(engine)->iDamage.add(message);
    try {
        if (engineLog.isDebugEnabled())
            engineLog.debug(QString::fromUtf8(message));
    } catch (const std::exception&) {
        return; // losing a warning is harmless
    }
}

// MuPDF is silent about a message that it has just given, and about what it has kept of damaged
// images and fonts. Each page that shows them is to be reported.
void PDFEngine::beginPage() const {
    if (!iDamage.isNone())
        fz_empty_store(context);
    fz_flush_warnings(context);
    iDamage = {};
}

void PDFEngine::open(const QString& path, bool mapped, const QByteArray& password) {
    PDFFile::check(path);
    if (mapped)
        map(path);
    const QByteArray name = QFile::encodeName(path);
    try {
        run(ErrorKind::pdfOpen, [&](fz_context* ctx) { openDocument(ctx, name.constData()); });
    } catch (const PlatformException& failure) {
        if (!hasPDFHeader(path))
            PDFFile::failToOpen(path, Message::translate("PDFDocument", "is not a PDF document"));
        const bool isUnknownCipher =
            failure.reason().startsWith(u"unknown ") && failure.reason().contains(u"crypt");
        PDFFile::failToOpen(
            path, (isUnknownCipher
                       ? Message::translate("PDFDocument", "is encrypted in an unknown way (%1)")
                       : Message::translate("PDFDocument", "is damaged beyond repair (%1)"))
                      .arg(failure.message()));
    }
    unlock(path, password);
    pageCount = countPages();
    if (pageCount == 0)
        checkPageTree(path);
}

// MuPDF counts no pages in a tree that it can't read. The error is that of reading its root.
void PDFEngine::checkPageTree(const QString& path) const {
    try {
        run(ErrorKind::pdfOpen, [this](fz_context* ctx) {
            pdf_obj* root = pdf_dict_get(ctx, pdf_trailer(ctx, document), PDF_NAME(Root));
            const int number = pdf_to_num(ctx, pdf_dict_get(ctx, root, PDF_NAME(Pages)));
            if (number > 0)
                pdf_drop_obj(ctx, pdf_load_object(ctx, document, number));
            pdf_obj* kids = pdf_dict_getp(ctx, root, "Pages/Kids");
            if (!pdf_is_array(ctx, kids) || pdf_array_len(ctx, kids) > 0)
                fz_throw(ctx, FZ_ERROR_GENERIC, "malformed page tree");
        });
    } catch (const PlatformException& failure) {
        PDFFile::failToOpen(path, Message::translate("PDFDocument", "its pages can't be found (%1)")
                                      .arg(failure.message()));
    }
}

// A document that has only an owner's password opens without one.
void PDFEngine::unlock(const QString& path, const QByteArray& password) {
    constexpr int ownerBit = 4;
    const auto authenticate = [this](const char* words) {
        return get([&](fz_context* ctx) { return pdf_authenticate_password(ctx, document, words); },
                   0);
    };
    const char* words = password.constData();
    if (!get([this](fz_context* ctx) { return pdf_needs_password(ctx, document); }, 0)) {
        const int found = password.isEmpty() ? 0 : authenticate(words);
        isOwner = (found & ownerBit) != 0;
        if (found == 0 && !password.isEmpty())
            authenticate(""); // a wrong password takes away the keys
        return;
    }
    if (password.isEmpty())
        PDFFile::failToOpen(path, Message::translate("PDFDocument", "is protected by a password"),
                            ErrorKind::pdfPassword);
    const int found = authenticate(words);
    isOwner = (found & ownerBit) != 0;
    if (found == 0)
        PDFFile::failToOpen(path, Message::translate("PDFDocument", "the password is wrong"),
                            ErrorKind::pdfPassword);
}

// Leaves it unmapped where that fails.
void PDFEngine::map(const QString& path) {
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    mappingSize = static_cast<std::size_t>(QFileInfo(path).size());
    void* memory = ::mmap(nullptr, mappingSize, PROT_READ, MAP_PRIVATE, file, 0);
    ::close(file);
    mapping = memory == MAP_FAILED ? nullptr : memory;
}

void PDFEngine::openDocument(fz_context* ctx, const char* path) {
    if (!mapping) {
        document = pdf_open_document(ctx, path);
        return;
    }
    fz_stream* stream =
        fz_open_memory(ctx, static_cast<const unsigned char*>(mapping), mappingSize);
    runAndDrop(
        ctx, [&] { document = pdf_open_document_with_stream(ctx, stream); },
        [&] { fz_drop_stream(ctx, stream); });
}

pdf_obj* PDFEngine::pageObject(int index) const {
    pdf_obj* object = nullptr;
    run(ErrorKind::pageUnreadable,
        [&](fz_context* ctx) { object = pdf_lookup_page_obj(ctx, document, index); });
    return object;
}

pdf_obj* PDFEngine::entry(pdf_obj* dictionary, const char* key) const {
    return object([&](fz_context* ctx) { return pdf_dict_gets(ctx, dictionary, key); });
}

pdf_obj* PDFEngine::trailerEntry(const char* key) const {
    return entry(object([this](fz_context* ctx) { return pdf_trailer(ctx, document); }), key);
}

QString PDFEngine::text(pdf_obj* string) const {
    if (!get([&](fz_context* ctx) { return pdf_is_string(ctx, string); }, 0))
        return {};
    const char* bytes = get([&](fz_context* ctx) { return pdf_to_text_string(ctx, string); },
                            static_cast<const char*>(nullptr));
    return bytes ? QString::fromUtf8(bytes).left(PDFLimits::maxTextLength) : QString();
}

QString PDFEngine::name(pdf_obj* object) const {
    return QString::fromUtf8(get([&](fz_context* ctx) { return pdf_to_name(ctx, object); }, ""));
}

Message PDFEngine::caughtReason() const {
    if (fz_caught(context) == FZ_ERROR_MEMORY)
        return Message::translate("PageFailure", "it takes more memory than a page may have");
    return QString::fromUtf8(fz_caught_message(context));
}

int PDFEngine::countPages() const {
    return get(
        [this](fz_context* ctx) {
            return std::clamp(pdf_count_pages(ctx, document), 0, pdf_xref_len(ctx, document));
        },
        0);
}

std::optional<PDFTarget> PDFEngine::destinationTarget(pdf_obj* destination) const {
    const QByteArray called = nameOfDestination(destination);
    const auto known = namedTargets.find(called);
    const PDFTarget target =
        known == namedTargets.end() ? lookUpDestination(destination) : known->second;
    if (!called.isEmpty())
        namedTargets.emplace(called, target);
    return target.page >= 0 && target.page < pageCount ? std::optional(target) : std::nullopt;
}

QByteArray PDFEngine::nameOfDestination(pdf_obj* destination) const {
    std::size_t size = 0;
    const char* string = get(
        [&](fz_context* ctx) {
            return pdf_is_string(ctx, destination) ? pdf_to_string(ctx, destination, &size)
                                                   : nullptr;
        },
        static_cast<const char*>(nullptr));
    if (string)
        return '(' + QByteArray(string, qsizetype(size));
    const char* word = get([&](fz_context* ctx) { return pdf_to_name(ctx, destination); }, "");
    return *word ? '/' + QByteArray(word) : QByteArray();
}

PDFTarget PDFEngine::lookUpDestination(pdf_obj* destination) const {
    pdf_obj* explicitDestination = object([&](fz_context* ctx) {
        pdf_obj* target = destination;
        // MuPDF does not search the name tree of a document that also has the older dictionary of
        // names.
        if (pdf_is_string(ctx, destination))
            target = pdf_lookup_name(ctx, document, PDF_NAME(Dests), destination);
        if (pdf_is_name(ctx, destination) || !target)
            target = pdf_lookup_dest(ctx, document, destination);
        if (pdf_is_dict(ctx, target))
            target = pdf_dict_get(ctx, target, PDF_NAME(D));
        return target;
    });
    pdf_obj* page =
        object([&](fz_context* ctx) { return pdf_array_get(ctx, explicitDestination, 0); });
    return {pageNumber(page), placeAcross(explicitDestination)};
}

double PDFEngine::placeAcross(pdf_obj* explicitDestination) const {
    const double across = get(
        [&](fz_context* ctx) {
            pdf_obj* page = pdf_array_get(ctx, explicitDestination, 0);
            pdf_obj* left = pdf_array_get(ctx, explicitDestination, 2);
            pdf_obj* top = pdf_array_get(ctx, explicitDestination, 3);
            pdf_obj* kind = pdf_array_get(ctx, explicitDestination, 1);
            if (!pdf_name_eq(ctx, kind, PDF_NAME(XYZ)) || !pdf_is_number(ctx, left) ||
                !pdf_is_number(ctx, top) || !pdf_is_dict(ctx, page))
                return -1.0;
            fz_rect box;
            fz_matrix matrix;
            pdf_page_obj_transform(ctx, page, &box, &matrix);
            const fz_rect shown = fz_transform_rect(box, matrix);
            const fz_point place =
                fz_transform_point_xy(pdf_to_real(ctx, left), pdf_to_real(ctx, top), matrix);
            return (double(place.x) - shown.x0) / (double(shown.x1) - shown.x0);
        },
        -1.0);
    return std::isfinite(across) ? across : -1;
}

int PDFEngine::pageNumber(pdf_obj* page) const {
    if (get([&](fz_context* ctx) { return pdf_is_int(ctx, page); }, 0))
        return get([&](fz_context* ctx) { return pdf_to_int(ctx, page); }, -1);
    const int object = get([&](fz_context* ctx) { return pdf_to_num(ctx, page); }, 0);
    if (object == 0)
        return -1;
    const auto known = pageNumbers.find(object);
    if (known != pageNumbers.end())
        return known->second;
    const int number =
        get([&](fz_context* ctx) { return pdf_lookup_page_number(ctx, document, page); }, -1);
    pageNumbers.emplace(object, number);
    return number;
}

std::optional<PDFTarget> PDFEngine::target(pdf_obj* dictionary) const {
    if (pdf_obj* destination = entry(dictionary, "Dest"))
        return destinationTarget(destination);
    return actionTarget(entry(dictionary, "A"));
}

std::optional<PDFTarget> PDFEngine::actionTarget(pdf_obj* action) const {
    if (action && name(entry(action, "S")) == QStringLiteral("GoTo"))
        return destinationTarget(entry(action, "D"));
    return std::nullopt;
}

std::optional<PDFTarget> PDFEngine::openTarget() const {
    pdf_obj* open = entry(trailerEntry("Root"), "OpenAction");
    const bool isAction = get([&](fz_context* ctx) { return pdf_is_dict(ctx, open); }, 0) != 0;
    return isAction || !open ? actionTarget(open) : destinationTarget(open);
}
