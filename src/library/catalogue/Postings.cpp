#include "library/catalogue/Postings.h"

namespace {

constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

QByteArray distances(std::span<const std::uint32_t> numbers) {
    QByteArray text;
    std::uint32_t next = 0;
    for (const std::uint32_t number : numbers) {
        std::uint32_t distance = number - next;
        for (; distance >= 32; distance >>= 5)
            text += digits[(distance & 31) | 32];
        text += digits[distance];
        next = number + 1;
    }
    return text;
}

QByteArray bits(std::span<const std::uint32_t> numbers) {
    QByteArray values(qsizetype(numbers.back() / 6) + 1, 0);
    for (const std::uint32_t number : numbers)
        values[number / 6] = char(values[number / 6] | 1 << number % 6);
    for (char& value : values)
        value = digits[uchar(value)];
    return '!' + values;
}

} // namespace

QByteArray Postings::encoded(std::span<const std::uint32_t> numbers) {
    if (numbers.empty())
        return {};
    const bool mayBeDense = numbers.size() > numbers.back() / 12;
    const QByteArray one = distances(numbers);
    const QByteArray other = mayBeDense ? bits(numbers) : one;
    return other.size() < one.size() ? other : one;
}
