#include "platform/base/collections.h"

#include <gmock/gmock.h>

#include "archive_test_classes.h"

using testing::ElementsAre;

namespace {
std::vector<int> ValuesOf(CPtrList const & list)
{
    std::vector<int> values;
    for (POSITION position = list.GetHeadPosition(); position;)
        values.push_back(*static_cast<int *>(list.GetNext(position)));
    return values;
}

std::vector<int> ValuesBackwards(CPtrList const & list)
{
    std::vector<int> values;
    for (POSITION position = list.GetTailPosition(); position;)
        values.push_back(*static_cast<int *>(list.GetPrev(position)));
    return values;
}
}  // namespace

class ListOfNumbers : public testing::Test
{
  protected:
    int m_numbers[6] = {0, 1, 2, 3, 4, 5};
    CPtrList m_list{2};  // small blocks, so that several are made
};

TEST_F(ListOfNumbers, StartsEmpty)
{
    EXPECT_TRUE(m_list.IsEmpty());
    EXPECT_EQ(m_list.GetCount(), 0);
    EXPECT_EQ(m_list.GetHeadPosition(), nullptr);
    EXPECT_EQ(m_list.GetTailPosition(), nullptr);
    EXPECT_EQ(m_list.FindIndex(0), nullptr);
}

TEST_F(ListOfNumbers, GrowsAtBothEnds)
{
    m_list.AddTail(&m_numbers[2]);
    m_list.AddHead(&m_numbers[1]);
    m_list.AddTail(&m_numbers[3]);
    EXPECT_THAT(ValuesOf(m_list), ElementsAre(1, 2, 3));
    EXPECT_THAT(ValuesBackwards(m_list), ElementsAre(3, 2, 1));
    EXPECT_EQ(m_list.GetHead(), &m_numbers[1]);
    EXPECT_EQ(m_list.GetTail(), &m_numbers[3]);
}

TEST_F(ListOfNumbers, InsertsAtPositionsAndForNullAtTheEnds)
{
    POSITION const middle = m_list.AddTail(&m_numbers[2]);
    m_list.InsertBefore(middle, &m_numbers[1]);
    m_list.InsertAfter(middle, &m_numbers[3]);
    m_list.InsertBefore(nullptr, &m_numbers[0]);
    m_list.InsertAfter(nullptr, &m_numbers[4]);
    EXPECT_THAT(ValuesOf(m_list), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(ValuesBackwards(m_list), ElementsAre(4, 3, 2, 1, 0));
}

TEST_F(ListOfNumbers, RemovesAnywhereAndReusesTheRoom)
{
    for (int & number : m_numbers)
        m_list.AddTail(&number);
    m_list.RemoveAt(m_list.FindIndex(2));
    EXPECT_EQ(m_list.RemoveHead(), &m_numbers[0]);
    EXPECT_EQ(m_list.RemoveTail(), &m_numbers[5]);
    EXPECT_THAT(ValuesOf(m_list), ElementsAre(1, 3, 4));
    m_list.AddHead(&m_numbers[5]);
    EXPECT_THAT(ValuesBackwards(m_list), ElementsAre(4, 3, 1, 5));
    m_list.RemoveAll();
    EXPECT_EQ(m_list.GetHeadPosition(), nullptr);
    m_list.AddTail(&m_numbers[1]);
    EXPECT_THAT(ValuesOf(m_list), ElementsAre(1));
}

TEST_F(ListOfNumbers, FindsByPointerAndIndex)
{
    for (int const index : {1, 2, 1})
        m_list.AddTail(&m_numbers[index]);
    POSITION const first = m_list.Find(&m_numbers[1]);
    EXPECT_EQ(first, m_list.GetHeadPosition());
    EXPECT_EQ(m_list.Find(&m_numbers[1], first), m_list.GetTailPosition());
    EXPECT_EQ(m_list.Find(&m_numbers[3]), nullptr);
    EXPECT_EQ(m_list.GetAt(m_list.FindIndex(1)), &m_numbers[2]);
    EXPECT_EQ(m_list.FindIndex(3), nullptr);
    EXPECT_EQ(m_list.FindIndex(-1), nullptr);
}

TEST_F(ListOfNumbers, ElementsCanBeReplaced)
{
    m_list.AddTail(&m_numbers[1]);
    m_list.AddTail(&m_numbers[2]);
    m_list.SetAt(m_list.GetHeadPosition(), &m_numbers[4]);
    m_list.GetTail() = &m_numbers[5];
    EXPECT_THAT(ValuesOf(m_list), ElementsAre(4, 5));
}

TEST(CollectionArchive, ObjectArrayStoresCountAndObjects)
{
    Leaf leaf(3);
    CObArray array;
    array.Add(&leaf);
    array.Add(nullptr);
    std::string const bytes = Stored([&](CArchive & archive) { array.Serialize(archive); });
    EXPECT_EQ(bytes, Bytes("\x02\0\xFF\xFF\x01\0\x04\0Leaf\x03\0\0\0\0\0"));
    CauseOfLoading(bytes, [](CArchive & archive) {
        CObArray back;
        back.SetSize(5);
        back.Serialize(archive);
        ASSERT_EQ(back.GetSize(), 2);
        EXPECT_EQ(static_cast<Leaf *>(back[0])->m_value, 3);
        EXPECT_EQ(back[1], nullptr);
        delete back[0];
    });
}

TEST(CollectionArchive, ObjectListAddsWhatItReadsAtTheTail)
{
    Leaf leaf(3);
    CObList list;
    list.AddTail(&leaf);
    std::string const bytes = Stored([&](CArchive & archive) { list.Serialize(archive); });
    EXPECT_EQ(bytes, Bytes("\x01\0\xFF\xFF\x01\0\x04\0Leaf\x03\0\0\0"));
    CauseOfLoading(bytes, [&](CArchive & archive) { list.Serialize(archive); });
    ASSERT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetHead(), &leaf);
    delete list.RemoveTail();
}

TEST(CollectionArchive, TextsAndBytesStandOneAfterTheOther)
{
    CStringArray texts;
    texts.Add("ab");
    texts.Add("");
    CByteArray flags;
    flags.Add(1);
    flags.Add(0xFE);
    std::string const bytes = Stored([&](CArchive & archive) {
        texts.Serialize(archive);
        flags.Serialize(archive);
    });
    EXPECT_EQ(bytes, Bytes("\x02\0\x02"
                           "ab\0"
                           "\x02\0\x01\xFE"));
    CauseOfLoading(bytes, [](CArchive & archive) {
        CStringArray backTexts;
        CByteArray backFlags;
        backTexts.Add("old");
        backFlags.Add(9);
        backTexts.Serialize(archive);
        backFlags.Serialize(archive);
        EXPECT_THAT(backTexts.View(), ElementsAre("ab", ""));
        EXPECT_THAT(backFlags.View(), ElementsAre(1, 0xFE));
    });
}

TEST(CollectionArchive, LongCountsComeBack)
{
    CByteArray flags;
    flags.SetSize(200000);
    flags[199999] = 7;
    std::string const bytes = Stored([&](CArchive & archive) { flags.Serialize(archive); });
    EXPECT_EQ(bytes.substr(0, 6), Bytes("\xFF\xFF\x40\x0D\x03\0"));  // 200000 = 0x30D40
    CauseOfLoading(bytes, [](CArchive & archive) {
        CByteArray back;
        back.Serialize(archive);
        ASSERT_EQ(back.GetSize(), 200000);
        EXPECT_EQ(back[199999], 7);
    });
}
