#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "platform/base/archive.h"
#include "platform/base/file.h"
#include "units/units.h"

namespace {
using Bytes = std::vector<std::uint8_t>;

Bytes Written(CVARDUnits const & units)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        EXPECT_EQ(units.WriteElements(archive), 1);
    }
    Bytes bytes(static_cast<std::size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

int ReadFrom(Bytes bytes, CVARDUnits & units)
{
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive archive(&file, CArchive::load);
    return units.ReadElements(archive);
}

Bytes Header(std::uint32_t recordSize, std::uint32_t count)
{
    Bytes bytes = {'U', 'N', 'I', 'T', 'S', ' ', ' ', ' ', ' ', ' ', ' ', ' ', 0};
    for (std::uint32_t word : {recordSize, count})
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(word >> shift));
    return bytes;
}

void AppendRecord(Bytes & bytes, std::uint8_t id, char const * name)
{
    bytes.insert(bytes.end(), {id, 0, 0, 0});
    char label[12] = {};
    std::strncpy(label, name, sizeof(label) - 1);
    bytes.insert(bytes.end(), label, label + sizeof(label));
    // 0.5 as a double, little-endian
    bytes.insert(bytes.end(), {0, 0, 0, 0, 0, 0, 0xE0, 0x3F});
}

class UnitBlockTest : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_baseUnits.Create(CZECH);
        m_units.Create(&m_baseUnits, CZECH);
    }

    CVARDBaseUnits m_baseUnits;
    CVARDUnits m_units;
};

TEST_F(UnitBlockTest, BlockIsWrittenByteForByte)
{
    Bytes const bytes = Written(m_units);
    ASSERT_EQ(bytes.size(), 21U + 18U * 24U);
    Bytes expected = Header(24, 18);
    // Metre, id 3, factor 1.0; then degree, id 8, factor pi/180 = 0x3F91DF46A2529D39.
    expected.insert(expected.end(), {3, 0, 0, 0, 'm', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    expected.insert(expected.end(), {0, 0, 0, 0, 0, 0, 0xF0, 0x3F});
    expected.insert(expected.end(), {8, 0, 0, 0, 'd', 'e', 'g', 0, 0, 0, 0, 0, 0, 0, 0, 0});
    expected.insert(expected.end(), {0x39, 0x9D, 0x52, 0xA2, 0x46, 0xDF, 0x91, 0x3F});
    EXPECT_TRUE(std::equal(expected.begin(), expected.end(), bytes.begin()));
}

TEST_F(UnitBlockTest, ReadBlockBringsBackEveryUnit)
{
    m_units.m_units[UN_Length] = m_baseUnits.GetBaseUnit(UN_Length, BU_yd);
    CVARDUnits other;
    ASSERT_EQ(ReadFrom(Written(m_units), other), 1);
    EXPECT_EQ(std::memcmp(other.m_units, m_units.m_units, sizeof(m_units.m_units)), 0);
}

TEST_F(UnitBlockTest, LabelsAndFactorsOfTheFileWin)
{
    Bytes bytes = Header(24, 1);
    AppendRecord(bytes, BU_m, "Meter");
    ASSERT_EQ(ReadFrom(bytes, m_units), 1);
    EXPECT_EQ(m_units.GetUnitString(UN_Length), "Meter");
    EXPECT_EQ(m_units.SetValToProject(2.0, UN_Length), 1.0);
    EXPECT_EQ(m_units.GetUnitString(UN_Angle), "deg");
}

TEST_F(UnitBlockTest, LabelWithoutItsEndIsEnded)
{
    Bytes bytes = Header(24, 1);
    AppendRecord(bytes, BU_m, "");
    std::fill(bytes.begin() + 25, bytes.begin() + 37, static_cast<std::uint8_t>('x'));
    ASSERT_EQ(ReadFrom(bytes, m_units), 1);
    EXPECT_EQ(m_units.GetUnitString(UN_Length), "xxxxxxxxxxx");
}

TEST_F(UnitBlockTest, NineteenRecordsAreRead)
{
    Bytes bytes = Header(24, 19);
    for (int i = 0; i < 19; ++i)
        AppendRecord(bytes, BU_cm, "odd");
    ASSERT_EQ(ReadFrom(bytes, m_units), 1);
    EXPECT_STREQ(m_units.m_units[18].name, "odd");
}

TEST_F(UnitBlockTest, ForeignBlocksChangeNothing)
{
    Bytes foreignName = Header(24, 1);
    foreignName[2] = 'X';
    AppendRecord(foreignName, BU_cm, "odd");
    Bytes foreignSize = Header(28, 1);
    AppendRecord(foreignSize, BU_cm, "odd");
    Bytes forgedCount = Header(24, 21);
    for (int i = 0; i < 21; ++i)
        AppendRecord(forgedCount, BU_cm, "odd");
    Bytes const before = Written(m_units);
    for (Bytes const & bytes : {foreignName, foreignSize, forgedCount, Header(24, 0xFFFFFFFF)}) {
        EXPECT_EQ(ReadFrom(bytes, m_units), 0);
        EXPECT_EQ(Written(m_units), before);
    }
}

TEST_F(UnitBlockTest, BlockCutAnywhereFailsWithTheUnitsReadSoFar)
{
    Bytes const whole = Written(m_units);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        CVARDUnits units;
        ASSERT_EQ(ReadFrom(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)), units),
                  0);
        std::size_t const complete = length < 21 ? 0 : (length - 21) / 24;
        EXPECT_EQ(std::memcmp(units.m_units, m_units.m_units, complete * sizeof(TSBaseUnit)), 0);
        TSBaseUnit const zero{};
        EXPECT_EQ(std::memcmp(&units.m_units[complete], &zero, sizeof(zero)), 0);
    }
}
}  // namespace
