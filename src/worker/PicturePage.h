#pragma once

#include "worker/QPDFHeaders.h"

#include <QSizeF>
#include <QString>

// A page with a picture and nothing else.
namespace PicturePage {

// The size in points that a picture's page has by itself: that of the paper that was scanned where
// the file says so, else at most A4.
QSizeF ownSize(const QString& path);

// A new page of the document, not yet in its list, with the picture as large as fits into its
// middle. JPEG files are taken over as they are. Throws PlatformException (pdfOpen) for a file that
// is no picture, or one too large.
QPDFObjectHandle make(QPDF& document, const QString& path, const QSizeF& size);

} // namespace PicturePage
