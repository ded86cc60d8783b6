#pragma once

// Merges documents and pictures into one file for another process, which does not trust them:
//
//     folvero-page-worker merge OUTPUT
//
// docs/internals.md has the protocol, "Sandboxed reading and drawing".
void serveMerging(const char* output);
