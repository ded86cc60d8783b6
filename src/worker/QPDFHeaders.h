#pragma once

// qpdf's header of JSON, of which only the name is needed, is none that clang 14 compiles as C++20.
#define JSON_HH
class JSON;

#include <qpdf/ClosedFileInputSource.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>
