#pragma once

#include <QString>

namespace Caption {

// Whether a text begins as the captions of figures do: "Figure 3", "Abb. 2".
bool startsLike(const QString& text);

} // namespace Caption
