#pragma once

#include <QByteArray>
#include <cstdint>
#include <span>

// Lists of book numbers as texts that are short and safe in scripts.
namespace Postings {

// Ascending numbers: the shorter of the distances, and "!" with a bit for each book up to the last
// one. Digits are A-Z a-z 0-9 - _ with six bits each, the lowest first; a distance has five bits in
// each digit, and the sixth where more follow.
QByteArray encoded(std::span<const std::uint32_t> numbers);

} // namespace Postings
