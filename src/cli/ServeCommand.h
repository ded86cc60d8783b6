#pragma once

#include <QString>
#include <optional>

// Shows a published book to the browsers of this machine until Ctrl-C, on that port (0: any free
// one) or else on the first free one of a few: this program becomes the web server, and does not
// return. Throws CommandError.
void runServe(const QString& folder, std::optional<int> port, bool verbose);
