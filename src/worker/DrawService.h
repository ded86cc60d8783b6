#pragma once

// Draws pages of one PDF for an import that runs in another process:
//
//     folvero-page-worker draw
//
// The first line that it reads from standard input is its order: "PDF FOLDER QUALITY", both paths
// as base64. It says "here" before it opens the document and "ready" after that; when it can't be
// opened it says "fail REASON" and ends. Then it reads one-based page numbers, one a line, writes
// the page file "N.jpg" into the folder and answers each with one line: "ok DRAW ENCODE WRITE"
// (seconds) or "fail REASON".
void serveDrawing();
