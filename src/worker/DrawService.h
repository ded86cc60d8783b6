#pragma once

// Draws pages of one PDF for an import that runs in another process:
//
//     folvero-page-worker draw PDF FOLDER QUALITY
//
// It says "ready" once the document is open. Then it reads one-based page numbers, one a line, from
// standard input, writes the page file "N.jpg" into the folder and answers each with one line: "ok
// DRAW ENCODE WRITE" (seconds) or "fail REASON". When the document can't be opened it says that and
// ends.
void serveDrawing(const char* pdf, const char* folder, const char* quality);
