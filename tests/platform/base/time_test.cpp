#include "platform/base/time.h"

#include <gtest/gtest.h>

#include <limits>

TEST(TimeValue, HoldsSecondsAndOrders)
{
    EXPECT_EQ(CTime().GetTime(), 0);
    EXPECT_EQ(CTime(1000).GetTime(), 1000);
    EXPECT_TRUE(CTime(1) < CTime(2));
    EXPECT_TRUE(CTime(2) == CTime(2));
    EXPECT_TRUE(CTime(-1) < CTime());
}

TEST(TimeValue, GivesItsLocalDate)
{
    std::tm date = {};
    date.tm_year = 102;
    date.tm_mon = 2;
    date.tm_mday = 5;
    date.tm_hour = 7;
    date.tm_isdst = -1;
    CTime const time(std::mktime(&date));
    std::tm back = {};
    EXPECT_EQ(time.GetLocalTm(&back), &back);
    EXPECT_EQ(back.tm_year, 102);
    EXPECT_EQ(back.tm_mday, 5);
    EXPECT_EQ(back.tm_hour, 7);
}

TEST(TimeValue, WithoutADateLeavesTheRecord)
{
    std::tm date = {};
    date.tm_mday = 77;
    EXPECT_EQ(CTime(std::numeric_limits<std::time_t>::max()).GetLocalTm(&date), nullptr);
    EXPECT_EQ(date.tm_mday, 77);
}
