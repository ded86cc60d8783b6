#pragma once

#include "base/PlatformException.h"
#include "pdf/PDFDocument.h"
#include "pdf/PDFText.h"

#include <QByteArray>

// Serialises what one process reports to another about a document. Unpacking trusts nothing:
// malformed data throws malformedAnswer().
namespace PDFSerialization {

// An exception of the kind readerMalformedAnswer.
PlatformException malformedAnswer();

QByteArray pack(int number);
QByteArray pack(const QString& text);
QByteArray pack(const PDFPage& page);
QByteArray pack(const std::vector<QString>& texts);
QByteArray pack(const std::vector<PDFAnnotation>& annotations);
QByteArray pack(const std::vector<PDFOutlineNode>& nodes);
QByteArray pack(const std::vector<PDFTextLine>& lines);

int unpackNumber(const QByteArray& packed);
QString unpackText(const QByteArray& packed);
PDFPage unpackPage(const QByteArray& packed);
std::vector<QString> unpackTexts(const QByteArray& packed);
std::vector<PDFAnnotation> unpackAnnotations(const QByteArray& packed);
std::vector<PDFOutlineNode> unpackOutline(const QByteArray& packed);
std::vector<PDFTextLine> unpackTextLines(const QByteArray& packed);

} // namespace PDFSerialization
