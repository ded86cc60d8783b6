#include "platform/Log.h"

#include <gtest/gtest.h>

TEST(Log, CarriesThePlaceOfTheCall) {
    Log::Record last;
    Log::setWatcher([&](const Log::Record& record) { last = record; });
    const unsigned line = __LINE__ + 1;
    Log("Reader").warn("read");
    Log::setWatcher({});
    EXPECT_EQ(last.logger, "Reader");
    EXPECT_EQ(last.where.line, line);
    EXPECT_TRUE(QString::fromUtf8(last.where.file).endsWith("Log_test.cpp"));
    EXPECT_STREQ(last.where.function, "TestBody");
}
