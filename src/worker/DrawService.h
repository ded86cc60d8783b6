#pragma once

// Draws pages of one PDF for an import that runs in another process:
//
//     folvero-page-worker draw
//
// The first line that it reads from standard input is its order: "PDF FOLDER QUALITY WHAT", both
// paths as base64. It says "here" before it opens the document and "ready" after that; when it
// can't be opened it says "fail REASON" and ends. Then it reads one-based page numbers, one a line.
// WHAT says what it makes of them in the folder: for "pages" the page file "N.jpg", for "web" what
// a web book has beside that. It answers each with one line: "ok DRAW ENCODE WRITE" (seconds) or
// "fail REASON".
void serveDrawing();
