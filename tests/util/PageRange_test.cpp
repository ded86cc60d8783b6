#include "pages/FlashPageSource.h"

#include "support/FailureOf.h"
#include "util/LenientInteger.h"

#include <climits>
#include <gtest/gtest.h>
#include <map>

namespace {

QString numbersIn(const char* expression, int total = 5) {
    QStringList numbers;
    for (const int number : FlashPageSource::parsePageRange(expression, total))
        numbers << QString::number(number);
    return numbers.join(' ');
}

} // namespace

TEST(PageRange, ReadsListsAndSpans) {
    const std::map<const char*, const char*> cases{{"3,1-2,2", "1 2 3"},
                                                   {"1-3, 7", "1 2 3 7"},
                                                   {"5-3", ""},
                                                   {"2-4-9", "2 3 4"},
                                                   {"", "0"},
                                                   {"abc", "0"},
                                                   {"4-", ""},
                                                   {"-3", "0 1 2 3"},
                                                   {"1,,2", "0 1 2"},
                                                   {"10", "10"},
                                                   {"2x,+4", "2 4"},
                                                   {"1–3", "1"},
                                                   {"ALL", "1 2 3 4 5"},
                                                   {"aLl", "1 2 3 4 5"},
                                                   {" ALL", "0"}};
    for (const auto& [expression, numbers] : cases)
        EXPECT_EQ(numbersIn(expression), numbers) << expression;
    EXPECT_EQ(numbersIn("ALL", 0), "");
    EXPECT_EQ(numbersIn("ALL", -2), "");
}

TEST(PageRange, StaysWithin32BitsAndWithinReason) {
    EXPECT_EQ(lenientInteger(u"99999999999999999999"), INT_MAX);
    EXPECT_EQ(lenientInteger(u"-99999999999999999999"), INT_MIN);
    EXPECT_EQ(numbersIn("2147483646-2147483647"), "2147483646 2147483647");
    const auto tooLong = failureOf([] { FlashPageSource::parsePageRange("1-1000000,7", 5); });
    EXPECT_EQ(tooLong.message.english(), "the page range \"1-1000000,7\" names 1000001 pages");
    EXPECT_EQ(FlashPageSource::parsePageRange("1-1000000", 5).size(), 1'000'000U);
}
