#pragma once

#include <QString>

// What stands before an item of a list, or before a heading or a footnote.
enum class ListMarker { none, bullet, dash, number };

// The kind of the marker that a line of text starts with.
ListMarker listMarkerOf(const QString& text);

// A line that starts with one of the marks of footnotes: a number or an asterisk, dagger and the
// like, with or without a blank.
bool startsLikeFootnote(const QString& text);
