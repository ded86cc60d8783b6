#pragma once

#include <QString>

class BookLayout;

namespace PlayerFile {

// The installed file of the player that a book has at that path. Fails when it is missing.
QString installed(const BookLayout& layout, const QString& path);

} // namespace PlayerFile
