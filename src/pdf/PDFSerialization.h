#pragma once

#include "base/PlatformException.h"
#include "pdf/MergePlan.h"
#include "pdf/PDFDocument.h"
#include "pdf/PDFPageContent.h"

#include <QByteArray>

// Serialises what one process tells another about a document: an int, a QString, a PDFPage, a
// PDFViewing, a PDFPageContent, a MergePlan, or a vector of QString, QSizeF, PDFAnnotation or
// PDFOutlineNode.
namespace PDFSerialization {

// An exception of the kind readerMalformedAnswer.
PlatformException malformedAnswer();

template <class Value>
QByteArray pack(const Value& value);

// Trusts nothing: malformed data throws malformedAnswer().
template <class Value>
Value unpack(const QByteArray& packed);

} // namespace PDFSerialization
