#include "console/ExitCode.h"

ExitCode exitCodeFor(ErrorKind kind) {
    switch (kind) {
    case ErrorKind::pageRangeTooLong:
        return ExitCode::usage;

    case ErrorKind::pdfOpen:
    case ErrorKind::pageMissing:
    case ErrorKind::pageUnreadable:
    case ErrorKind::pageTimeout:
    case ErrorKind::readerEnded:
    case ErrorKind::readerTimeout:
    case ErrorKind::readerMalformedAnswer:
    case ErrorKind::project:
        return ExitCode::badDocument;

    case ErrorKind::pdfPassword:
        return ExitCode::noPassword;

    case ErrorKind::processStart:
    case ErrorKind::pdfChanged:
        return ExitCode::tryAgain;

    case ErrorKind::pageStopped:
    case ErrorKind::readStopped:
        return ExitCode::cancelled;

    case ErrorKind::invalidParameter:
    case ErrorKind::temporaryFolder:
    case ErrorKind::pdfFile:
    case ErrorKind::jpegEncode:
    case ErrorKind::pageWrite:
    case ErrorKind::workFolder:
    case ErrorKind::pageListEnded:
    case ErrorKind::outline:
    case ErrorKind::outlineItem:
    case ErrorKind::templateFile:
    case ErrorKind::templateProperty:
    case ErrorKind::publishing:
    case ErrorKind::searchIndex:
    case ErrorKind::preview:
    case ErrorKind::previewFolder:
    case ErrorKind::list:
        return ExitCode::failed;
    }
    return ExitCode::failed;
}
