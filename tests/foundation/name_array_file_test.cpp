// CNameArr: the raw block in files, byte by byte, and what is refused.
#include <gmock/gmock.h>

#include <cstring>

#include "tests/foundation/name_array_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {
/// Makes blocks from literal pieces; a string literal gives its characters without the NUL behind them.
class Bytes
{
  public:
    Bytes & Text(std::string const & text)
    {
        m_bytes.insert(m_bytes.end(), text.begin(), text.end());
        return *this;
    }

    /// A text filled up with NULs to a length.
    Bytes & Field(std::string text, std::size_t length)
    {
        text.resize(length, '\0');
        return Text(text);
    }

    Bytes & Int(std::int32_t value)
    {
        auto const bits = static_cast<std::uint32_t>(value);
        for (int shift = 0; shift < 32; shift += 8)
            m_bytes.push_back(static_cast<unsigned char>(bits >> shift));
        return *this;
    }

    operator NameArrayBytes() const { return m_bytes; }

  private:
    NameArrayBytes m_bytes;
};

/// The part in front of the names: actual name "b3", work name "b".
Bytes BlockStart(std::int32_t mark = 20)
{
    return Bytes()
        .Field("ARRAYNAMES  ", 13)
        .Int(mark)
        .Int(0)
        .Int(10)
        .Field("b", 12)
        .Int(3)
        .Int(0)
        .Int(10)
        .Field("b", 12)
        .Int(2);
}

/// The block of `SampleTable`.
NameArrayBytes SampleBlock()
{
    return BlockStart()
        .Int(3)
        .Field("a", 12)
        .Int(-1)
        .Field("b", 12)
        .Int(2)
        .Field("b", 12)
        .Int(3)
        .Int(3)
        .Int(1)
        .Int(-100)
        .Int(2);
}

/// Names b2 (handle 0), a (handle 1, marked as deleted), b3 (handle 2, asked for as b2).
void FillSampleTable(CNameArr & names)
{
    for (char const * text : {"b2", "a", "b2"}) {
        CString name(text);
        names.AddName(name, 1);
    }
    names.DeleteNameBySort(1);
}
}  // namespace

TEST(NameArrayFile, BlockToTheByte)
{
    CNameArr names;
    FillSampleTable(names);
    int result = 9;
    EXPECT_EQ(Written(names, &result), SampleBlock());
    EXPECT_EQ(result, 1);
}

TEST(NameArrayFile, EmptyTableWritesItsSectionNameOnly)
{
    CNameArr const names;
    int result = 9;
    EXPECT_EQ(Written(names, &result), NameArrayBytes(Bytes().Field("NOARRAYNAMES", 13)));
    EXPECT_EQ(result, 0);
}

TEST(NameArrayFile, BlockIsReadBack)
{
    CNameArr names;
    std::size_t left = 9;
    EXPECT_EQ(ReadInto(names, SampleBlock(), &left), 1);
    EXPECT_EQ(left, 0U);
    EXPECT_THAT(Texts(names), ElementsAre("a", "b2", "b3"));
    EXPECT_THAT(Handles(names), ElementsAre(1, -100, 2));
    EXPECT_EQ(names.GetActNameStr(), "b3");
    EXPECT_EQ(Written(names), SampleBlock());
}

TEST(NameArrayFile, ReadingStopsBehindTheBlock)
{
    CNameArr names;
    NameArrayBytes bytes = SampleBlock();
    bytes.insert(bytes.end(), {1, 2, 3, 4, 5});
    std::size_t left = 0;
    EXPECT_EQ(ReadInto(names, bytes, &left), 1);
    EXPECT_EQ(left, 5U);
}

TEST(NameArrayFile, ReadingReplacesTheTable)
{
    CNameArr names;
    CString name("z");
    names.AddName(name, 1);
    EXPECT_EQ(ReadInto(names, SampleBlock()), 1);
    EXPECT_THAT(Texts(names), ElementsAre("a", "b2", "b3"));
}

TEST(NameArrayFile, BlockOfAnEmptyTableChangesNothing)
{
    CNameArr names;
    FillSampleTable(names);
    EXPECT_EQ(ReadInto(names, Bytes().Field("NOARRAYNAMES", 13)), 1);
    EXPECT_EQ(Written(names), SampleBlock());
}

TEST(NameArrayFile, OtherSectionNamesAreRefused)
{
    for (char const * section :
         {"ARRAYNAMES", "ARRAYNAMES  x", "arraynames  ", "NOARRAYNAME ", "UNITS       ", ""}) {
        NameArrayBytes bytes = SampleBlock();
        std::string name(section);
        name.resize(13, '\0');
        std::memcpy(bytes.data(), name.data(), 13);
        CNameArr names;
        EXPECT_EQ(ReadInto(names, bytes), 0) << section;
        EXPECT_THAT(Texts(names), IsEmpty());
    }
}

TEST(NameArrayFile, OtherVersionMarksAreRefused)
{
    for (std::int32_t mark : {0, 16, 19, 21, 24, -20}) {
        CNameArr names;
        EXPECT_EQ(ReadInto(names, BlockStart(mark).Int(1).Field("a", 12).Int(1).Int(1).Int(0)), 0) << mark;
        EXPECT_THAT(Texts(names), IsEmpty());
    }
}

TEST(NameArrayFile, HeadOfANameFieldIsntLookedAt)
{
    NameArrayBytes bytes = SampleBlock();
    for (std::size_t field : {17, 41})
        for (std::size_t i = 0; i < 8; ++i)
            bytes[field + i] = 0xFF;
    CNameArr names;
    EXPECT_EQ(ReadInto(names, bytes), 1);
    EXPECT_EQ(Written(names), SampleBlock());
}

TEST(NameArrayFile, CutAtEveryByteIsRefusedAndChangesNothing)
{
    NameArrayBytes const whole = SampleBlock();
    CNameArr names;
    CString name("z9");
    names.AddName(name, 1);
    NameArrayBytes const before = Written(names);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(ReadInto(names, NameArrayBytes(whole.begin(), whole.begin() + static_cast<long>(length))),
                  0)
            << length;
        EXPECT_EQ(Written(names), before) << length;
    }
}

TEST(NameArrayFile, FalseNumberOfNamesIsRefused)
{
    for (std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min(), 4, 1000000,
                               std::numeric_limits<std::int32_t>::max()}) {
        CNameArr names;
        EXPECT_EQ(ReadInto(names, BlockStart().Int(count).Field("a", 12).Int(1).Int(1).Int(0)), 0) << count;
        EXPECT_THAT(Texts(names), IsEmpty());
    }
}

TEST(NameArrayFile, TooManyHandlesAreRefused)
{
    for (std::int32_t count : {2, 1000000, std::numeric_limits<std::int32_t>::max()}) {
        CNameArr names;
        EXPECT_EQ(ReadInto(names, BlockStart().Int(1).Field("a", 12).Int(1).Int(count).Int(0)), 0) << count;
        EXPECT_THAT(Texts(names), IsEmpty());
    }
}

TEST(NameArrayFile, NoHandlesLeaveTheHandles)
{
    for (std::int32_t count : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
        CNameArr names;
        FillSampleTable(names);
        EXPECT_EQ(ReadInto(names, BlockStart().Int(1).Field("q", 12).Int(1).Int(count)), 1) << count;
        EXPECT_THAT(Texts(names), ElementsAre("q1"));
        EXPECT_THAT(Handles(names), ElementsAre(1, -100, 2));
        EXPECT_EQ(names.GetNameStrBySort(0), "");  // its position isn't in the table any more
    }
}

TEST(NameArrayFile, BlockWithoutNamesEmptiesTheTable)
{
    CNameArr names;
    FillSampleTable(names);
    EXPECT_EQ(ReadInto(names, BlockStart().Int(0).Int(0)), 1);
    EXPECT_THAT(Texts(names), IsEmpty());
}

// Sample's next position is 3; the shorter table doesn't have it.
TEST(NameArrayFile, NextPositionStaysAsItWas)
{
    CNameArr names;
    FillSampleTable(names);
    ReadInto(names, BlockStart().Int(1).Field("a", 12).Int(1).Int(1).Int(0));
    EXPECT_EQ(names.AddNameDirect(), -1);
    CNameArr others;
    FillSampleTable(others);
    ReadInto(others, SampleBlock());
    EXPECT_EQ(others.AddNameDirect(), 3);
}

TEST(NameArrayFile, ForgedHandlesAreNeverLive)
{
    std::int32_t const highest = std::numeric_limits<std::int32_t>::max();
    std::int32_t const lowest = std::numeric_limits<std::int32_t>::min();
    CNameArr names;
    ASSERT_EQ(
        ReadInto(
            names,
            BlockStart().Int(1).Field("a", 12).Int(1).Int(5).Int(highest).Int(lowest).Int(-1).Int(-99).Int(
                -1499999)),
        1);
    for (int handle = 0; handle < 5; ++handle) {
        EXPECT_EQ(names.GetNameStrBySort(handle), "");
        EXPECT_EQ(names.DeleteNameBySort(handle), 0);
        EXPECT_EQ(names.UnDeleteNameBySort(handle), 0);
    }
    CString name("A");
    EXPECT_EQ(names.AddName(name, 1), 5);
    EXPECT_THAT(Handles(names), ElementsAre(highest, lowest, -1, -99, -1499999, 0));
    EXPECT_EQ(names.NameArrayCompress(), 1);
    EXPECT_THAT(Handles(names), ElementsAre(highest, lowest, -1, -99, -1500000, 0));
}

// A walk from the start ends at the first entry behind the sought name, so it never comes to the others.
TEST(NameArrayFile, TableThatIsntInOrderIsWalkedFromItsStart)
{
    OpenNameArray names;
    ASSERT_EQ(ReadInto(names, BlockStart()
                                  .Int(3)
                                  .Field("c", 12)
                                  .Int(1)
                                  .Field("a", 12)
                                  .Int(1)
                                  .Field("b", 12)
                                  .Int(1)
                                  .Int(3)
                                  .Int(0)
                                  .Int(1)
                                  .Int(2)),
              1);
    EXPECT_EQ(names.FindName(NameRecord("b", 1)), 2);
    EXPECT_EQ(names.FindName(NameRecord("b", 2)), -1);
    int position = 99;
    EXPECT_EQ(names.FindName(NameRecord("b", 1), position, 1), -1);
    EXPECT_EQ(position, 0);
    EXPECT_EQ(names.FindName(NameRecord("d", 1), position, 1), -1);
    EXPECT_EQ(position, 3);
    CString text("a1");
    names.GetFirstFreeNameStr(text, 1);
    EXPECT_EQ(text, "a1");  // the first entry not before "a" is "c1"
}

TEST(NameArrayFile, NamesWithoutTerminatorReadTheirTwelveBytes)
{
    CNameArr names;
    ASSERT_EQ(ReadInto(names, BlockStart().Int(1).Text("abcdefghijkl").Int(7).Int(1).Int(0)), 1);
    EXPECT_THAT(Texts(names), ElementsAre("abcdefghijkl7"));
    EXPECT_EQ(names.FindName(CString("abcdefghijkl7")),
              -1);  // a text is cut to ten bytes before it is sought
}
