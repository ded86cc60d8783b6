#pragma once

#include <QString>
#include <optional>

// Shows a published book to the browsers of this machine until Ctrl-C, on that port (0: any free
// one) or else on the first free one of a few. Throws CommandError.
void serveBook(const QString& folder, std::optional<int> port);
