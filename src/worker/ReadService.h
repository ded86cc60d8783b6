#pragma once

// Reads one PDF for another process, which does not trust the file:
//
//     folvero-page-worker read PDF
//
// It prints "here" once its sandbox is in force, opens the document and prints "ok" with the number
// of pages. Then it reads questions, one per line, from standard input: "page N", "annotations N"
// (zero-based), "outline", "labels", "language", "information KEY". It answers each with one line:
// "ok PACKED" (PDFSerialization in base64) or "fail NAME REASON". Opening can fail likewise.
void serveReading(const char* pdf);
