#pragma once

#include "drawing/WebPageFiles.h"

#include <QByteArrayView>

// Checks files of pages before they become part of a book. They were written by processes that have
// read an untrusted document, which may have taken them over.
namespace PageFileCheck {

// Whether a file is what its name says: a picture by its parts and its size in pixels, vectors by
// all of their content. A file that does not exist is; a link is not.
bool isGenuine(const WebPageFiles& files, const QString& path);

// Whether packed vectors contain drawings only: no scripts, event handlers or addresses outside of
// the file.
bool areHarmless(QByteArrayView packedVectors);

} // namespace PageFileCheck
