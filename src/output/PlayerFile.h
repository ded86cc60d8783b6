#pragma once

#include <QStringList>

class BookLayout;

namespace PlayerFile {

// The installed file of the player that a book has at that path. Fails when it is missing.
QString installed(const BookLayout& layout, const QString& path);

// The paths in a book of the texts that readers of each language load; English has none.
QStringList languages();

} // namespace PlayerFile
