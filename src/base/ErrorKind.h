#pragma once

// The kinds of PlatformException, for callers that treat some of them differently.
enum class ErrorKind {
    invalidParameter,
    processStart,
    temporaryFolder,
    pageRangeTooLong,

    // A PDF and its pages.
    pdfFile,     // no file to read: missing, a folder, not readable
    pdfOpen,     // not a PDF, damaged
    pdfPassword, // it needs one, or another one
    pdfChanged,  // while it was open
    pageMissing,
    pageUnreadable,
    pageTimeout,
    pageStopped,

    // The process that reads a PDF.
    readerEnded,
    readerTimeout,
    readerMalformedAnswer,
    readStopped,

    // Page files and what is imported with them.
    jpegEncode,
    pageWrite,
    workFolder,
    pageListEnded,
    outline,
    outlineItem,

    templateFile,
    templateProperty,

    publishing,
    searchIndex,
    preview,
    previewFolder,

    project, // damaged, or of a newer version

    list, // of a library's books
};

// The name of a kind in the log and in the answers of page workers.
const char* nameOf(ErrorKind kind);
