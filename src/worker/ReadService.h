#pragma once

// Reads one PDF for another process, which does not trust the file:
//
//     folvero-page-worker read PDF
//
// docs/internals.md has the protocol, "Sandboxed reading and drawing".
void serveReading(const char* pdf);
