// CVARDSectionObj: one section of a length.
#include "foundation/vard_section_object.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/foundation/object_fixture.h"
#include "tests/support/decimal_comma_locale.h"

namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string Columns(double begin, double length)
{
    CVARDSectionObj section;
    section.SetSection(begin, length);
    CStringArray list;
    list.Add("old");
    EXPECT_EQ(section.GetStrToCtrlList(&list), 1);
    std::string text;
    for (int i = 0; i < list.GetSize(); ++i)
        text += std::string(list.GetAt(i)) + "|";
    return text;
}
}  // namespace

TEST(SectionObject, StartsAtZeroWithoutLength)
{
    CVARDSectionObj const section;
    EXPECT_EQ(section.GetBeginSection(), 0.0);
    EXPECT_EQ(section.GetLengthSection(), 0.0);
    EXPECT_EQ(section.GetEndSection(), 0.0);
}

TEST(SectionObject, SettingTheBeginMovesTheEnd)
{
    CVARDSectionObj section;
    section.SetSection(1, 4);
    section.SetBeginSection(3);
    EXPECT_EQ(section.GetLengthSection(), 4.0);
    EXPECT_EQ(section.GetEndSection(), 7.0);
}

TEST(SectionObject, SettingLengthOrEndKeepsTheBegin)
{
    CVARDSectionObj section;
    section.SetBeginSection(1);
    section.SetLengthSection(2);
    EXPECT_EQ(section.GetEndSection(), 3.0);
    section.SetEndSection(9);
    EXPECT_EQ(section.GetBeginSection(), 1.0);
    EXPECT_EQ(section.GetLengthSection(), 8.0);
}

TEST(SectionObject, ColumnsAreBeginEndAndLengthInThreeDigits)
{
    EXPECT_EQ(Columns(0, 2.5), "0|2.5|2.5|");
    EXPECT_EQ(Columns(1.0 / 3, 1234), "0.333|1.23e+03|1.23e+03|");
    EXPECT_EQ(Columns(-1e-5, 0), "-1e-05|-1e-05|0|");
    EXPECT_EQ(Columns(kInfinity, -1.23456e-300), "inf|inf|-1.23e-300|");
}

TEST(SectionObject, ColumnsHaveAPointInEveryLocale)
{
    DecimalCommaLocale const locale;
    ASSERT_TRUE(locale.IsSet());
    EXPECT_EQ(Columns(0.5, 1), "0.5|1.5|1|");
}

TEST(SectionObject, ColumnsNeedAList)
{
    EXPECT_EQ(CVARDSectionObj().GetStrToCtrlList(nullptr), 0);
}

TEST(SectionObject, CopiesItsFields)
{
    CVARDSectionObj from;
    from.SetSection(1, 2);
    CVARDSectionObj copied;
    CVARDSectionObj assigned;
    EXPECT_EQ(copied.CopyObject(&from), 1);
    assigned = from;
    EXPECT_EQ(copied.GetEndSection(), 3.0);
    EXPECT_EQ(assigned.GetEndSection(), 3.0);
}

TEST(SectionObject, CopyOfNullOrAnotherKindChangesNothing)
{
    CVARDSectionObj section;
    section.SetSection(1, 2);
    CVARDObject other;
    EXPECT_EQ(section.CopyObject(nullptr), 0);
    EXPECT_EQ(section.CopyObject(&other), 0);
    EXPECT_EQ(section.GetBeginSection(), 1.0);
}

// Version 1 in 32 bits, begin 1.0 and length -2.0 in 64 bits.
TEST(SectionObject, StoredFormToTheByte)
{
    CVARDSectionObj section;
    section.SetSection(1, -2);
    Bytes const expected{1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 0, 0, 0, 0, 0, 0, 0, 0xC0};
    EXPECT_EQ(Stored(section), expected);
}

TEST(SectionObject, LoadsItsFields)
{
    CVARDSectionObj section;
    Bytes const bytes{9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 0, 0, 0, 0, 0, 0, 0, 0x40};
    LoadFrom(section, bytes);
    EXPECT_EQ(section.GetBeginSection(), 1.0);
    EXPECT_EQ(section.GetLengthSection(), 2.0);
    EXPECT_EQ(Stored(section), bytes);
}
