#include "base/ErrorKind.h"

#include <array>
#include <utility>

namespace {

constexpr std::array names{
    std::pair{ErrorKind::invalidParameter, "InvalidParameter"},
    std::pair{ErrorKind::processStart, "ProcessStartFailed"},
    std::pair{ErrorKind::temporaryFolder, "TemporaryFolder"},
    std::pair{ErrorKind::pageRangeTooLong, "PageRangeTooLong"},
    std::pair{ErrorKind::pdfFile, "PDFFileFailed"},
    std::pair{ErrorKind::pdfOpen, "PDFOpenFailed"},
    std::pair{ErrorKind::pdfPassword, "PDFPasswordFailed"},
    std::pair{ErrorKind::pdfChanged, "PDFChanged"},
    std::pair{ErrorKind::pageMissing, "PDFPageMissing"},
    std::pair{ErrorKind::pageUnreadable, "PDFPageUnreadable"},
    std::pair{ErrorKind::pageTimeout, "PDFPageTimeout"},
    std::pair{ErrorKind::pageStopped, "PDFPageStopped"},
    std::pair{ErrorKind::readerEnded, "PDFReaderEnded"},
    std::pair{ErrorKind::readerTimeout, "PDFReaderTimeout"},
    std::pair{ErrorKind::readerMalformedAnswer, "PDFReaderMalformedAnswer"},
    std::pair{ErrorKind::readStopped, "PDFReadStopped"},
    std::pair{ErrorKind::jpegEncode, "JPEGEncodeFailed"},
    std::pair{ErrorKind::pageWrite, "PageWriteFailed"},
    std::pair{ErrorKind::workFolder, "WorkFolderFailed"},
    std::pair{ErrorKind::pageListEnded, "PageListEnded"},
    std::pair{ErrorKind::outline, "ERROR_INIT_OUTLINES"},
    std::pair{ErrorKind::outlineItem, "ERROR_INIT_OUTLINE_ITEM"},
    std::pair{ErrorKind::templateFile, "ERROR_TEMPLATE_FILE"},
    std::pair{ErrorKind::templateProperty, "ERROR_TEMPLATE_PROPERTY"},
    std::pair{ErrorKind::publishing, "PublishError"},
    std::pair{ErrorKind::searchIndex, "SearchIndexFailed"},
    std::pair{ErrorKind::preview, "Publish"},
    std::pair{ErrorKind::previewFolder, "PreviewFolder"},
    std::pair{ErrorKind::project, "ProjectFailed"},
    std::pair{ErrorKind::list, "ListFailed"},
};

constexpr bool listsEachKindInOrder() {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (std::size_t(names[i].first) != i)
            return false;
    }
    return names.back().first == ErrorKind::list;
}
static_assert(listsEachKindInOrder());

} // namespace

const char* nameOf(ErrorKind kind) {
    return names[std::size_t(kind)].second;
}
