#include "units/units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/list_combo_box.h"

namespace {
class UnitsTest : public testing::Test
{
  protected:
    void SetUp() override
    {
        ASSERT_EQ(m_baseUnits.Create(CZECH), 1);
        m_units.Create(&m_baseUnits, CZECH);
    }

    void Choose(TEUnit unit, TEBaseUnit id) { m_units.m_units[unit] = m_baseUnits.GetBaseUnit(unit, id); }

    // A set in which no factor is 1 and none equals another where a table row could mix them up.
    void ChooseOddUnits()
    {
        Choose(UN_Length, BU_cm);
        Choose(UN_Angle, BU_deg);
        Choose(UN_Force, BU_lbf);
        Choose(UN_Stress, BU_psi);
        Choose(UN_ForceLength, BU_ft);
        Choose(UN_SectionLength, BU_inch);
        Choose(UN_Displacement, BU_mm);
        Choose(UN_Rotation, BU_gra);
        Choose(UN_Mass, BU_kg);
        Choose(UN_Area, BU_ft2);
        Choose(UN_SmallLength, BU_yd);
        m_units.m_units[UN_Temperature].factor = 0.5;
    }

    double Factor(TEUnit unit) const { return m_units.m_units[unit].factor; }

    CVARDBaseUnits m_baseUnits;
    CVARDUnits m_units;
};

std::string Text(CString const & text)
{
    return static_cast<char const *>(text);
}

TEST_F(UnitsTest, ProjectStartsWithItsUnits)
{
    TEBaseUnit const expected[kUnitCount] = {BU_m,   BU_deg, BU_kN,   BU_kPa, BU_m,  BU_m,
                                             BU_deg, BU_m,   BU_deg,  BU_mm,  BU_mm, BU_mm,
                                             BU_t,   BU_sec, BU_degC, BU_cm2, BU_mm, BU_percent};
    for (int unit = 0; unit < kUnitCount; ++unit)
        EXPECT_EQ(m_units.GetTypeBaseUnit(static_cast<TEUnit>(unit)), expected[unit]) << unit;
}

TEST_F(UnitsTest, UnusedKindsStartAsZeroRecords)
{
    for (TEUnit unit : {UN_Unused9, UN_Unused10, UN_Unused11}) {
        EXPECT_EQ(Factor(unit), 0.0);
        EXPECT_EQ(m_units.GetUnitString(unit), "");
        EXPECT_EQ(m_units.SetValToProject(5.0, unit), 0.0);
    }
}

TEST_F(UnitsTest, GermanProjectStartsInNewtonsPerSquareMillimetre)
{
    m_units.Create(&m_baseUnits, GERMANY);
    EXPECT_EQ(m_units.GetTypeBaseUnit(UN_Stress), BU_Nmm2);
    EXPECT_EQ(m_units.GetTypeBaseUnit(UN_SmallLength), BU_mm);
}

TEST_F(UnitsTest, EnglishProjectHasSmallLengthsInCentimetres)
{
    m_units.Create(&m_baseUnits, ENGLISH);
    EXPECT_EQ(m_units.GetTypeBaseUnit(UN_SmallLength), BU_cm);
    EXPECT_EQ(m_units.GetTypeBaseUnit(UN_Stress), BU_kPa);
}

TEST_F(UnitsTest, ShownValueTimesFactorIsTheProjectValue)
{
    Choose(UN_Length, BU_inch);
    EXPECT_EQ(m_units.SetValToProject(10.0, UN_Length), 10.0 * 0.0254);
    EXPECT_EQ(m_units.GetProjectToVal(0.254, UN_Length), 0.254 / 0.0254);
}

struct CompoundRow
{
    TEUnitExt unit;
    double factor;
    char const * label;
};

TEST_F(UnitsTest, EveryCompoundQuantityHasItsFactorAndLabel)
{
    ChooseOddUnits();
    double const u0 = Factor(UN_Length), u1 = Factor(UN_Angle), u2 = Factor(UN_Force), u3 = Factor(UN_Stress);
    double const u4 = Factor(UN_ForceLength), u5 = Factor(UN_SectionLength), u7 = Factor(UN_Displacement);
    double const u8 = Factor(UN_Rotation), u12 = Factor(UN_Mass), u14 = Factor(UN_Temperature);
    CompoundRow const rows[] = {
        {UE_Gamma, u12 / (u0 * u0 * u0), "kg/cm3"},
        {UE_K, 1 / u14,
         "1/\xB0"
         "C"},
        {UE_SecArea, u5 * u5, "inch2"},
        {UE_SecInertia, u5 * u5 * u5 * u5, "inch4"},
        {UE_SecIOmega, u5 * u5 * u5 * u5 * u5 * u5, "inch6"},
        {UE_SecModulus, u5 * u5 * u5, "inch3"},
        {UE_LineForce, u2 / u4, "lb/ft"},
        {UE_PlaneForce, u2 / u4 / u4, "lb/ft2"},
        {UE_Force, u2, "lb"},
        {UE_Moment, u2 * u4, "lbft"},
        {UE_Displacement, u7, "mm"},
        {UE_Rotation, u8, "gra"},
        {UE_LineMoment, u2, "lbft/ft"},
        {UE_AngleMoment, u2 * u4 / u1, "lbft/deg"},
        {UE_ForcePerAngle, u2 / u1, "lb/ft3"},
        {UE_TempPerLength, u14 / u0, "lb/ft3"},
        {UE_FoundationC1, u3 / u0, "psi/cm"},
        {UE_FoundationC2, u3 * u0, "psi cm"},
        {UE_FoundationC1Beam, u3 / u0 * u0, "psi"},
        {UE_FoundationC2Beam, u3 * u0 * u0, "psi cm2"},
        {UE_StiffPoint, u2 * u4 / u1, "lbft/deg"},
        {UE_StiffLine, u2 * u4 / u0 / u1, "lbft/cm/deg"},
        {UE_StiffFAR, u2 / u4, "lb/ft"},
        {UE_Stress, u3, "psi"},
        {UE_Gravity, u2 / u4 / u4 / u4, "lb/ft3"},
        {UE_MassRotation, 1 / (u12 * u0 * u0), "kg*cm2"},
        {UE_DimArea, Factor(UN_Area), "ft^2"},
        {UE_DimSmallLength, Factor(UN_SmallLength), "yd"},
        {UE_DimPercent, Factor(UN_Percent), "%"},
        {UE_DimAreaPerMeter, Factor(UN_Area), "ft^2/m"},
        {UE_StiffFARRot, u2 * u4 / u1, "lbft/deg"},
        {UE_MassOnVolume, u12 / u4 / u4 / u4, "kg/ft3"},
    };
    double const value = 1.7;
    for (CompoundRow const & row : rows) {
        EXPECT_EQ(m_units.SetValToProjectExt(value, row.unit), value * row.factor) << row.unit;
        EXPECT_EQ(m_units.GetProjectToValExt(value, row.unit), value / row.factor) << row.unit;
        EXPECT_EQ(Text(m_units.GetUnitStringExt(row.unit)), row.label) << row.unit;
    }
}

TEST_F(UnitsTest, PlainQuantitiesConvertTowardsTheProjectOnly)
{
    Choose(UN_SectionLength, BU_cm);
    for (TEUnitExt unit : {UE_Plain3, UE_Plain4, UE_Plain5}) {
        EXPECT_EQ(m_units.SetValToProjectExt(1.0, unit), 0.0001);
        EXPECT_EQ(m_units.GetProjectToValExt(0.0001, unit), 0.0001);
        EXPECT_EQ(m_units.GetUnitStringExt(unit), "");
    }
}

TEST_F(UnitsTest, QuantityOutsideTheTableLeavesTheValue)
{
    for (int unit : {-1, 0, 36, 1000}) {
        auto const quantity = static_cast<TEUnitExt>(unit);
        EXPECT_EQ(m_units.SetValToProjectExt(3.0, quantity), 3.0);
        EXPECT_EQ(m_units.GetProjectToValExt(3.0, quantity), 3.0);
        EXPECT_EQ(m_units.GetUnitStringExt(quantity), "");
    }
}

using Conversion = double (CVARDUnits::*)(double) const;

struct SingleRow
{
    TEUnitExt unit;
    Conversion toProject;
    Conversion fromProject;
};

TEST_F(UnitsTest, SingleConversionsAgreeWithTheirCompoundQuantity)
{
    ChooseOddUnits();
    SingleRow const rows[] = {
        {UE_K, &CVARDUnits::SetValToK, &CVARDUnits::GetK_ToVal},
        {UE_Gamma, &CVARDUnits::SetValToGamma, &CVARDUnits::GetGamma_ToVal},
        {UE_StiffPoint, &CVARDUnits::SetValToStiffPoint, &CVARDUnits::GetStiffPointToVal},
        {UE_StiffFARRot, &CVARDUnits::SetValToStiff_FAR_Rot, &CVARDUnits::GetStiff_FAR_RotToVal},
        {UE_AngleMoment, &CVARDUnits::SetValTo_FxmIrad, &CVARDUnits::GetProjectTo_FxmIrad},
        {UE_StiffLine, &CVARDUnits::SetValToStiffLine, &CVARDUnits::GetStiffLineToVal},
        {UE_StiffFAR, &CVARDUnits::SetValToStiff_FAR, &CVARDUnits::GetStiff_FARToVal},
        {UE_LineForce, &CVARDUnits::SetValTo_FIm, &CVARDUnits::GetProjectTo_FIm},
        {UE_LineMoment, &CVARDUnits::SetValTo_FxmIm, &CVARDUnits::GetProjectTo_FxmIm},
        {UE_PlaneForce, &CVARDUnits::SetValTo_FImxm, &CVARDUnits::GetProjectTo_FImxm},
        {UE_Moment, &CVARDUnits::SetValTo_Fxm, &CVARDUnits::GetProjectTo_Fxm},
        {UE_TempPerLength, &CVARDUnits::SetValTo_KIm, &CVARDUnits::GetProjectTo_KIm},
        {UE_ForcePerAngle, &CVARDUnits::SetValTo_FIrad, &CVARDUnits::GetProjectTo_FIrad},
        {UE_Gravity, &CVARDUnits::SetValTo_Gravity, &CVARDUnits::GetProjectTo_Gravity},
        {UE_MassOnVolume, &CVARDUnits::SetValTo_tImImIm, &CVARDUnits::GetProjectTo_tImImIm},
        {UE_MassRotation, &CVARDUnits::SetValToMassRotation, &CVARDUnits::GetMassRotationToVal},
        {UE_FoundationC1, &CVARDUnits::SetProjectToFoundationC1, &CVARDUnits::GetProjectToFoundationC1},
        {UE_FoundationC2, &CVARDUnits::SetProjectToFoundationC2, &CVARDUnits::GetProjectToFoundationC2},
        {UE_FoundationC1Beam, &CVARDUnits::SetProjectToFoundationC1Beam,
         &CVARDUnits::GetProjectToFoundationC1Beam},
        {UE_FoundationC2Beam, &CVARDUnits::SetProjectToFoundationC2Beam,
         &CVARDUnits::GetProjectToFoundationC2Beam},
    };
    for (SingleRow const & row : rows) {
        EXPECT_EQ((m_units.*row.toProject)(1.3), m_units.SetValToProjectExt(1.3, row.unit)) << row.unit;
        EXPECT_EQ((m_units.*row.fromProject)(1.3), m_units.GetProjectToValExt(1.3, row.unit)) << row.unit;
    }
}

TEST_F(UnitsTest, SectionDistanceGoesToAnyPower)
{
    Choose(UN_SectionLength, BU_cm);
    EXPECT_DOUBLE_EQ(m_units.SetValTo_XSdistPower(2.0, 5), 2e-10);
    EXPECT_DOUBLE_EQ(m_units.GetProjectTo_XSdistPower(2e-10, 5), 2.0);
    EXPECT_EQ(m_units.SetValTo_XSdistPower(2.0, 0), 2.0);
    EXPECT_EQ(m_units.SetValTo_XSdistPower(2.0, 2000000000), 0.0);
}

TEST_F(UnitsTest, LabelOperationsAppendTheirPower)
{
    EXPECT_EQ(m_units.GetUnitArea("cm"), "cm2");
    EXPECT_EQ(m_units.GetUnitInertia("cm"), "cm4");
    EXPECT_EQ(m_units.GetUnitIOmega("cm"), "cm6");
    EXPECT_EQ(m_units.GetUnitTemp("cm"), "cm3");
    EXPECT_EQ(m_units.GetUnitVolume("cm"), "cm3");
}

TEST_F(UnitsTest, FormattedValueHasTheLabelOnDemand)
{
    EXPECT_EQ(m_units.GetFormatedString(1500.0, UN_Length, 1, -1, 2), "1500.00 m");
    EXPECT_EQ(m_units.GetFormatedString(1500.0, UN_Length, 0, -1, 2), "1500.00");
    Choose(UN_SectionLength, BU_cm);
    EXPECT_EQ(m_units.GetFormatedString(2e-6, UE_SecModulus, 1, -1, -1), "2.000 cm3");
}

TEST_F(UnitsTest, FormattedValueOfAnUnusedKindStaysText)
{
    EXPECT_FALSE(m_units.GetFormatedString(1.0, UN_Unused9, 1, -1, 2).IsEmpty());
}

TEST_F(UnitsTest, BoxShowsTheChosenUnit)
{
    Choose(UN_Length, BU_ft);
    ListComboBox box;
    EXPECT_EQ(m_units.BaseUnitToComboBox(&box, UN_Length), 1);
    EXPECT_EQ(box.Labels()[static_cast<std::size_t>(box.GetCurSel())], "ft");
}

TEST_F(UnitsTest, LookupsGoToTheBaseUnits)
{
    EXPECT_EQ(m_units.GetVARDBaseUnits(), &m_baseUnits);
    EXPECT_EQ(m_units.GetBaseUnits(UN_Force, BU_MN).factor, 1000.0);
    EXPECT_EQ(m_units.GetDefaultBaseUnits(UN_Angle).id, BU_rad);
}

TEST(Units, EverythingIsZeroBeforeCreate)
{
    CVARDUnits units;
    EXPECT_EQ(units.GetVARDBaseUnits(), nullptr);
    EXPECT_EQ(units.GetUnitString(UN_Length), "");
    EXPECT_EQ(units.GetBaseUnits(UN_Length, BU_m).factor, 0.0);
    ListComboBox box;
    EXPECT_EQ(units.BaseUnitToComboBox(&box, UN_Length), 0);
}

TEST(Units, KindOutsideTheRecordsIsHarmless)
{
    CVARDUnits units;
    for (int kind : {-1, 20, 2000000000}) {
        auto const unit = static_cast<TEUnit>(kind);
        EXPECT_EQ(units.SetValToProject(1.0, unit), 0.0);
        EXPECT_EQ(units.GetUnitString(unit), "");
        EXPECT_EQ(units.GetTypeBaseUnit(unit), BU_mm);
    }
}

// first, last, quantity: every number of the table and those just outside.
struct RangeRow
{
    int first;
    int last;
    int quantity;
};

int Lookup(std::vector<RangeRow> const & rows, int number)
{
    for (RangeRow const & row : rows)
        if (number >= row.first && number <= row.last)
            return row.quantity;
    return 0;
}

TEST(Units, IsolineValuesHaveTheirQuantity)
{
    std::vector<RangeRow> const rows = {{0, 3, 14},   {4, 6, 15},   {7, 15, 16}, {16, 19, 10},
                                        {52, 54, 10}, {20, 44, 27}, {49, 51, 27}};
    CVARDUnits const units;
    for (int type = -5; type < 100; ++type)
        EXPECT_EQ(units.GetUnitTypeIzo(static_cast<EEValueType>(type)), Lookup(rows, type)) << type;
}

TEST(Units, DesignResultsHaveTheirQuantity)
{
    std::vector<RangeRow> const rows = {{1, 4, 30},   {9, 16, 30},  {21, 24, 30}, {37, 40, 30}, {5, 8, 32},
                                        {17, 20, 32}, {25, 29, 32}, {53, 56, 32}, {36, 36, 32}, {30, 31, 14},
                                        {57, 58, 14}, {32, 33, 31}, {59, 70, 31}, {41, 52, 13}};
    CVARDUnits const units;
    for (int type = -5; type < 100; ++type)
        EXPECT_EQ(units.GetUnitTypeDIM(type), Lookup(rows, type)) << type;
}

TEST(Units, DeskResultsDifferInAreasAndNumber36)
{
    std::vector<RangeRow> const rows = {{1, 4, 33},   {9, 16, 33},  {21, 24, 33}, {37, 40, 33}, {5, 8, 32},
                                        {17, 20, 32}, {25, 29, 32}, {53, 56, 32}, {30, 31, 14}, {57, 58, 14},
                                        {32, 33, 31}, {59, 70, 31}, {41, 52, 13}};
    CVARDUnits const units;
    for (int type = -5; type < 100; ++type)
        EXPECT_EQ(units.GetUnitTypeOnDeskDIM(type), Lookup(rows, type)) << type;
}
}  // namespace
