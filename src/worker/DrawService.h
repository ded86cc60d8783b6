#pragma once

// Draws pages of one PDF for an import that runs in another process:
//
//     folvero-page-worker draw
//
// The first line of standard input is the job: "PDF FOLDER QUALITY", both paths in base64. It
// prints "here" once its sandbox is in force and "ready" when the document is open, or "fail
// REASON" when it can't be opened, and exits then. After that it reads one-based page numbers, one
// per line; one followed by "web" asks for what a web book has of the page, too. It answers each
// with one line: "ok DRAW ENCODE WRITE" (seconds), followed by a reason if some files for a web
// book could not be made; "fail REASON" when there is no page file; or "full REASON" or "unwritable
// REASON" when the folder can't be written.
void serveDrawing();
