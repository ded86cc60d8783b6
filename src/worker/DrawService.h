#pragma once

// Draws pages of one PDF for an import that runs in another process:
//
//     folvero-page-worker draw
//
// docs/internals.md has the protocol, "Sandboxed reading and drawing".
void serveDrawing();
