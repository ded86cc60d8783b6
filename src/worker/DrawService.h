#pragma once

// Draws pages of one PDF for an import that runs in another process:
//
//     folvero-page-worker draw
//
// The first line of standard input is the job: "PDF FOLDER QUALITY WHAT", both paths in base64. It
// prints "here" once its sandbox is in force and "ready" when the document is open, or "fail
// REASON" when it can't be opened, and exits then. After that it reads one-based page numbers, one
// per line. WHAT is the kind of files to make: "pages" for the page file "N.jpg", "web" for those
// that a web book has beside it. It answers each number with one line: "ok DRAW ENCODE WRITE"
// (seconds), "fail REASON", or "full REASON" or "unwritable REASON" when the folder can't be
// written.
void serveDrawing();
