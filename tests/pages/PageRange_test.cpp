#include "pages/FlashPageSource.h"

#include "platform/PlatformException.h"
#include "support/RecordedLog.h"
#include "util/LenientInteger.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using Numbers = std::vector<int>;

struct Case {
    const char* expression;
    int total;
    Numbers expected;
};

} // namespace

TEST(PageRange, ReadsListsAndSpans) {
    const std::vector<Case> cases{
        {"3,1-2,2", 5, {1, 2, 3}},
        {"1-3, 7", 5, {1, 2, 3, 7}},
        {"5-3", 5, {}},
        {"2-4-9", 5, {2, 3, 4}},
        {"", 5, {0}},
        {"abc", 5, {0}},
        {"4-", 5, {}},
        {"-3", 5, {0, 1, 2, 3}},
        {"1,,2", 5, {0, 1, 2}},
        {"10", 5, {10}},
        {"2x,+4", 5, {2, 4}},
        {"1\xe2\x80\x93"
         "3",
         5,
         {1}}, // an en dash is no hyphen
    };
    for (const Case& each : cases) {
        EXPECT_EQ(FlashPageSource::parsePageRange(QString::fromUtf8(each.expression), each.total),
                  each.expected)
            << each.expression;
    }
}

TEST(PageRange, TakesAllPagesForAllInAnyLetterCase) {
    const std::vector<Case> cases{
        {"ALL", 3, {1, 2, 3}}, {"aLl", 3, {1, 2, 3}}, {"ALL", 0, {}},
        {"ALL", -2, {}},       {" ALL", 3, {0}},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(FlashPageSource::parsePageRange(QString::fromUtf8(each.expression), each.total),
                  each.expected)
            << each.expression;
    }
}

TEST(PageRange, StaysWithin32BitsAndWithinReason) {
    EXPECT_EQ(lenientInteger(u"99999999999999999999"), INT_MAX);
    EXPECT_EQ(lenientInteger(u"-99999999999999999999"), INT_MIN);
    EXPECT_EQ(FlashPageSource::parsePageRange(QStringLiteral("2147483646-2147483647"), 5),
              (Numbers{INT_MAX - 1, INT_MAX}));
    EXPECT_THROW(FlashPageSource::parsePageRange(QStringLiteral("1-2147483647"), 5),
                 PlatformException);
}

TEST(PageRange, LogsEachNumberUnlessAllAreTaken) {
    const RecordedLog log;
    FlashPageSource::parsePageRange(QStringLiteral("all"), 2);
    EXPECT_TRUE(log.texts().isEmpty());
    FlashPageSource::parsePageRange(QStringLiteral("7,3"), 2);
    EXPECT_EQ(log.texts(),
              QStringList({QStringLiteral("range[0]=3"), QStringLiteral("range[1]=7")}));
}
