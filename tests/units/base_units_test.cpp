#include "units/base_units.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "tests/support/list_combo_box.h"

namespace {
struct UnitRow
{
    TEBaseUnit id;
    char const * label;
    double factor;
};

// Labels are bytes of code page 1250.
constexpr UnitRow kLengthRows[] = {{BU_mm, "mm", 0.001}, {BU_cm, "cm", 0.01},       {BU_dm, "dm", 0.1},
                                   {BU_m, "m", 1.0},     {BU_inch, "inch", 0.0254}, {BU_ft, "ft", 0.3048},
                                   {BU_yd, "yd", 0.9144}};
constexpr UnitRow kAngleRows[] = {
    {BU_rad, "rad", 1.0}, {BU_deg, "deg", 0.017453292519943295}, {BU_gra, "gra", 0.015707963267948967}};
constexpr UnitRow kForceRows[] = {
    {BU_N, "N", 0.001}, {BU_kN, "kN", 1.0}, {BU_MN, "MN", 1000.0}, {BU_lbf, "lb", 0.004448221}};
constexpr UnitRow kStressRows[] = {{BU_Pa, "Pa", 0.001},       {BU_kPa, "kPa", 1.0},
                                   {BU_MPa, "MPa", 1000.0},    {BU_psi, "psi", 6.8948},
                                   {BU_Nmm2, "N/mm2", 1000.0}, {BU_kNcm2, "kN/cm2", 10000.0},
                                   {BU_Nm2, "N/m2", 0.001},    {BU_kNm2, "kN/m2", 1.0}};
constexpr UnitRow kMassRows[] = {{BU_g, "g", 0.000001},
                                 {BU_dkg, "dkg", 0.00001},
                                 {BU_kg, "kg", 0.001},
                                 {BU_t, "t", 1.0},
                                 {BU_lbm, "lb", 0.00453592}};
constexpr UnitRow kTimeRows[] = {{BU_sec, "sec", 1.0}, {BU_min, "min", 60.0}, {BU_hod, "hod", 3600.0}};
constexpr UnitRow kTemperatureRows[] = {{BU_degC,
                                         "\xB0"
                                         "C",
                                         1.0}};
constexpr UnitRow kAreaRows[] = {
    {BU_mm2, "mm^2", 0.000001},  {BU_cm2, "cm^2", 0.0001},         {BU_dm2, "dm^2", 0.010000000000000002},
    {BU_m2, "m^2", 1.0},         {BU_inch2, "inch^2", 0.00064516}, {BU_ft2, "ft^2", 0.09290304},
    {BU_yd2, "yd^2", 0.83612736}};
constexpr UnitRow kRatioRows[] = {{BU_percent, "%", 0.01}};

struct ListRow
{
    TEUnit unit;
    std::vector<UnitRow> rows;
    TEBaseUnit defaultUnit;
};

template <std::size_t N>
ListRow List(TEUnit unit, UnitRow const (&rows)[N], TEBaseUnit defaultUnit)
{
    return {unit, std::vector<UnitRow>(rows, rows + N), defaultUnit};
}

std::vector<ListRow> const & AllLists()
{
    static std::vector<ListRow> const lists = {
        List(UN_Length, kLengthRows, BU_m),       List(UN_Angle, kAngleRows, BU_rad),
        List(UN_Force, kForceRows, BU_kN),        List(UN_Stress, kStressRows, BU_kPa),
        List(UN_ForceLength, kLengthRows, BU_m),  List(UN_SectionLength, kLengthRows, BU_m),
        List(UN_Angle2, kAngleRows, BU_rad),      List(UN_Displacement, kLengthRows, BU_m),
        List(UN_Rotation, kAngleRows, BU_deg),    List(UN_Mass, kMassRows, BU_t),
        List(UN_Time, kTimeRows, BU_sec),         List(UN_Temperature, kTemperatureRows, BU_degC),
        List(UN_Area, kAreaRows, BU_cm2),         List(UN_SmallLength, kLengthRows, BU_mm),
        List(UN_Percent, kRatioRows, BU_percent),
    };
    return lists;
}

TSBaseUnit Record(TEBaseUnit id, char const * name, double factor)
{
    TSBaseUnit unit{};
    unit.id = id;
    std::strncpy(unit.name, name, sizeof(unit.name) - 1);
    unit.factor = factor;
    return unit;
}

void ExpectZero(TSBaseUnit const & unit)
{
    TSBaseUnit const zero{};
    EXPECT_EQ(std::memcmp(&unit, &zero, sizeof(unit)), 0);
}

class BaseUnitsTest : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_EQ(m_baseUnits.Create(CZECH), 1); }

    CVARDBaseUnits m_baseUnits;
};

TEST_F(BaseUnitsTest, EveryUnitOfEveryListHasItsLabelAndFactor)
{
    for (ListRow const & list : AllLists())
        for (UnitRow const & row : list.rows) {
            TSBaseUnit const unit = m_baseUnits.GetBaseUnit(list.unit, row.id);
            EXPECT_EQ(unit.id, row.id) << "list " << list.unit;
            EXPECT_STREQ(unit.name, row.label) << "list " << list.unit;
            EXPECT_EQ(unit.factor, row.factor) << "list " << list.unit << " unit " << row.label;
        }
}

TEST_F(BaseUnitsTest, EveryListHasItsRowsInOrderAndItsDefault)
{
    for (ListRow const & list : AllLists()) {
        ListComboBox box;
        ASSERT_EQ(m_baseUnits.BaseUnitToComboBox(&box, list.unit, list.defaultUnit), 1);
        ASSERT_EQ(box.Labels().size(), list.rows.size()) << "list " << list.unit;
        for (std::size_t i = 0; i < list.rows.size(); ++i)
            EXPECT_EQ(box.Labels()[i], list.rows[i].label) << "list " << list.unit;
        EXPECT_EQ(m_baseUnits.GetDefaultBaseUnit(list.unit).id, list.defaultUnit);
    }
}

TEST_F(BaseUnitsTest, UnusedListsAreEmpty)
{
    for (TEUnit unit : {UN_Unused9, UN_Unused10, UN_Unused11}) {
        ListComboBox box;
        box.AddString("left over");
        EXPECT_EQ(m_baseUnits.BaseUnitToComboBox(&box, unit, BU_m), 0);
        EXPECT_TRUE(box.Labels().empty());
        ExpectZero(m_baseUnits.GetDefaultBaseUnit(unit));
    }
    ExpectZero(m_baseUnits.GetBaseUnit(UN_Unused9, BU_kN));
}

TEST_F(BaseUnitsTest, KindOutsideTheListsStandsForLengthsInLookups)
{
    EXPECT_EQ(m_baseUnits.GetBaseUnit(static_cast<TEUnit>(99), BU_m).id, BU_m);
    EXPECT_EQ(m_baseUnits.GetDefaultBaseUnit(static_cast<TEUnit>(18)).id, BU_m);
    EXPECT_EQ(m_baseUnits.GetBaseUnit(static_cast<TEUnit>(-1), BU_cm).id, BU_cm);
}

TEST_F(BaseUnitsTest, KindOutsideTheListsLeavesTheBoxAlone)
{
    ListComboBox box;
    box.AddString("left over");
    EXPECT_EQ(m_baseUnits.BaseUnitToComboBox(&box, static_cast<TEUnit>(18), BU_m), 0);
    EXPECT_EQ(box.Labels().size(), 1U);
}

TEST(BaseUnits, GermanStressStartsInNewtonsPerSquareMillimetre)
{
    CVARDBaseUnits german;
    ASSERT_EQ(german.Create(GERMANY), 1);
    EXPECT_EQ(german.GetDefaultBaseUnit(UN_Stress).id, BU_Nmm2);
    ListComboBox box;
    german.BaseUnitToComboBox(&box, UN_Stress, BU_Pa);
    ASSERT_EQ(box.Labels().size(), std::size(kStressRows));
    for (std::size_t i = 0; i < box.Labels().size(); ++i)
        EXPECT_EQ(box.Labels()[i], kStressRows[i].label);
}

TEST(BaseUnits, LookupsBeforeCreateGiveZeroRecords)
{
    CVARDBaseUnits baseUnits;
    ExpectZero(baseUnits.GetBaseUnit(UN_Length, BU_m));
    ExpectZero(baseUnits.GetDefaultBaseUnit(UN_Length));
    ListComboBox box;
    EXPECT_EQ(baseUnits.BaseUnitToComboBox(&box, UN_Length, BU_m), 0);
}

TEST(BaseUnitList, SameNameUnderAnotherIdIsNotAdded)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_mm, "mm", 0.001), 1);
    list.AddUnit(Record(BU_cm, "mm", 0.01), 1);
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_EQ(list.GetDefaultBaseUnit().id, BU_mm);
}

TEST(BaseUnitList, SameIdUnderAnotherNameIsNotAddedAndDefaultStays)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_mm, "mm", 0.001), 0);
    list.AddUnit(Record(BU_cm, "cm", 0.01), 0);
    list.AddUnit(Record(BU_cm, "centimetre", 0.01), 1);
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetDefaultBaseUnit().id, BU_mm);
}

TEST(BaseUnitList, LookupByNameNeverFindsAnything)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_mm, "mm", 0.001), 1);
    ExpectZero(list.GetBaseUnit("mm"));
    ExpectZero(list.GetBaseUnit(static_cast<char const *>(nullptr)));
}

TEST(BaseUnitList, UnknownIdGivesZeroRecord)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_mm, "mm", 0.001), 1);
    ExpectZero(list.GetBaseUnit(BU_kN));
}

TEST(BaseUnitList, BoxSelectsTheUnitByItsDataAlsoWhenItSorts)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_m, "m", 1.0), 1);
    list.AddUnit(Record(BU_cm, "cm", 0.01), 0);
    SortingListComboBox box;
    ASSERT_EQ(list.BaseUnitToComboBox(&box, BU_m), 1);
    EXPECT_EQ(box.Labels()[static_cast<std::size_t>(box.GetCurSel())], "m");
}

TEST(BaseUnitList, BoxSelectsTheDefaultsRowWithoutRegardToSorting)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_m, "m", 1.0), 1);
    list.AddUnit(Record(BU_cm, "cm", 0.01), 0);
    SortingListComboBox box;
    ASSERT_EQ(list.BaseUnitToComboBox(&box, BU_kN), 1);
    EXPECT_EQ(box.GetCurSel(), 0);
    EXPECT_EQ(box.Labels()[0], "cm");
}

TEST(BaseUnitList, FullBoxIsClearedAndFails)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_m, "m", 1.0), 1);
    list.AddUnit(Record(BU_cm, "cm", 0.01), 0);
    for (int error : {CComboBox::kError, CComboBox::kErrorSpace}) {
        ListComboBox box;
        box.FailAfter(1, error);
        EXPECT_EQ(list.BaseUnitToComboBox(&box, BU_m), 0);
        EXPECT_TRUE(box.Labels().empty());
    }
}

TEST(BaseUnitList, NullBoxFails)
{
    CVARDBaseUnit list;
    list.AddUnit(Record(BU_m, "m", 1.0), 1);
    EXPECT_EQ(list.BaseUnitToComboBox(nullptr, BU_m), 0);
}

TEST(BaseUnitRecord, NameIsCutAtNineBytes)
{
    struct Accessible : CVARDBaseUnits
    {
        using CVARDBaseUnits::CreateBaseUnit;
    } units;
    TSBaseUnit const unit = units.CreateBaseUnit(BU_m, "0123456789AB", 2.5);
    EXPECT_STREQ(unit.name, "012345678");
    EXPECT_EQ(unit.id, BU_m);
    EXPECT_EQ(unit.factor, 2.5);
    EXPECT_EQ(unit.name[9] + unit.name[10] + unit.name[11], 0);
}
}  // namespace
