#pragma once

// Reads one PDF for another process, which does not trust the file:
//
//     folvero-page-worker read PDF
//
// It says "here", opens the document and says "ok" with the number of pages. Then it reads
// questions, one a line, from standard input: "page N", "annotations N" (zero-based), "outline",
// "labels", "language", "information KEY". It answers each with one line: "ok PACKED" (base64 of
// what PDFSerialization packs) or "fail NAME REASON". The opening can fail too.
void serveReading(const char* pdf);
