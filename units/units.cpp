#include "units/units.h"

#include "foundation/vard_string.h"

IMPLEMENT_DYNCREATE(CVARDUnits, CObject)

namespace {
// The start values of a project by kind of quantity; stress and small length depend on the language. The ids
// of the three unused kinds aren't in their empty lists, so their records stay zero.
constexpr TEBaseUnit kStartUnits[kUnitCount] = {
    BU_m,  BU_deg, BU_kN,  BU_kPa, BU_m,   BU_m,    BU_deg, BU_m,  BU_deg,
    BU_kN, BU_m,   BU_deg, BU_t,   BU_sec, BU_degC, BU_cm2, BU_mm, BU_percent,
};

TEBaseUnit StartUnit(TEUnit unit, ELanguages language)
{
    if (unit == UN_Stress && language == GERMANY)
        return BU_Nmm2;
    if (unit == UN_SmallLength && language == ENGLISH)
        return BU_cm;
    return kStartUnits[unit];
}

bool HasRecord(TEUnit unit)
{
    return unit >= 0 && unit < CVARDUnits::kRoom;
}

// Numbers from `first` to `last` belong to the quantity `unit`.
struct NumberRange
{
    int first;
    int last;
    TEUnitExt unit;
};

template <std::size_t N>
TEUnitExt FindQuantity(NumberRange const (&ranges)[N], int number)
{
    for (NumberRange const & range : ranges)
        if (number >= range.first && number <= range.last)
            return range.unit;
    return UE_None;
}

constexpr NumberRange kIsolineRanges[] = {
    {0, 3, UE_Displacement}, {4, 6, UE_Rotation}, {7, 15, UE_LineMoment}, {16, 19, UE_LineForce},
    {52, 54, UE_LineForce},  {20, 44, UE_Stress}, {49, 51, UE_Stress},
};

// Design results that have the same quantity for members and desks.
constexpr NumberRange kDesignRanges[] = {
    {5, 8, UE_DimPercent},       {17, 20, UE_DimPercent},     {25, 29, UE_DimPercent},
    {53, 56, UE_DimPercent},     {30, 31, UE_Displacement},   {57, 58, UE_Displacement},
    {32, 33, UE_DimSmallLength}, {59, 70, UE_DimSmallLength}, {41, 52, UE_Moment},
};

bool IsDesignArea(int number)
{
    return (number >= 1 && number <= 4) || (number >= 9 && number <= 16) || (number >= 21 && number <= 24) ||
           (number >= 37 && number <= 40);
}

constexpr int kMemberOnlyRatio = 36;  // a ratio of members, without a unit for desks

CString Format(double shown, CString const & label, int withUnit, int width, int decimals)
{
    CString text = CVARDString().Str(shown, width, decimals, 0).GetCS();
    if (withUnit != 0)
        text += " " + label;
    return text;
}
}  // namespace

void CVARDUnits::Create(CVARDBaseUnits * base, ELanguages language)
{
    m_baseUnits = base;
    for (int unit = 0; unit < kUnitCount; ++unit) {
        auto const kind = static_cast<TEUnit>(unit);
        m_units[unit] = GetBaseUnits(kind, StartUnit(kind, language));
    }
}

double CVARDUnits::SetValToProject(double value, TEUnit unit) const
{
    return value * Factor(unit);
}

double CVARDUnits::GetProjectToVal(double value, TEUnit unit) const
{
    return value / Factor(unit);
}

CString CVARDUnits::GetFormatedString(double value, TEUnit unit, int withUnit, int width, int decimals) const
{
    return Format(GetProjectToVal(value, unit), GetUnitString(unit), withUnit, width, decimals);
}

CString CVARDUnits::GetFormatedString(double value, TEUnitExt unit, int withUnit, int width,
                                      int decimals) const
{
    return Format(GetProjectToValExt(value, unit), GetUnitStringExt(unit), withUnit, width, decimals);
}

int CVARDUnits::BaseUnitToComboBox(CComboBox * box, TEUnit unit) const
{
    return m_baseUnits ? m_baseUnits->BaseUnitToComboBox(box, unit, GetTypeBaseUnit(unit)) : 0;
}

TSBaseUnit CVARDUnits::GetBaseUnits(TEUnit unit, TEBaseUnit id) const
{
    return m_baseUnits ? m_baseUnits->GetBaseUnit(unit, id) : TSBaseUnit{};
}

TSBaseUnit CVARDUnits::GetDefaultBaseUnits(TEUnit unit) const
{
    return m_baseUnits ? m_baseUnits->GetDefaultBaseUnit(unit) : TSBaseUnit{};
}

TEBaseUnit CVARDUnits::GetTypeBaseUnit(TEUnit unit) const
{
    return HasRecord(unit) ? m_units[unit].id : TEBaseUnit{};
}

TEUnitExt CVARDUnits::GetUnitTypeIzo(EEValueType type) const
{
    return FindQuantity(kIsolineRanges, type);
}

TEUnitExt CVARDUnits::GetUnitTypeDIM(int type) const
{
    if (type == kMemberOnlyRatio)
        return UE_DimPercent;
    return IsDesignArea(type) ? UE_DimArea : FindQuantity(kDesignRanges, type);
}

TEUnitExt CVARDUnits::GetUnitTypeOnDeskDIM(int type) const
{
    return IsDesignArea(type) ? UE_DimAreaPerMeter : FindQuantity(kDesignRanges, type);
}

double CVARDUnits::Factor(TEUnit unit) const
{
    return HasRecord(unit) ? m_units[unit].factor : 0.0;
}

double CVARDUnits::FactorGamma() const
{
    double const length = Factor(UN_Length);
    return Factor(UN_Mass) / (length * length * length);
}

double CVARDUnits::FactorMassOnVolume() const
{
    double const arm = Factor(UN_ForceLength);
    return Factor(UN_Mass) / arm / arm / arm;
}

double CVARDUnits::FactorMassRotation() const
{
    double const length = Factor(UN_Length);
    return 1.0 / (Factor(UN_Mass) * length * length);
}

double CVARDUnits::SectionPower(int n) const
{
    constexpr int kLargestPower = 2000;  // beyond it every factor but 1 is 0 or infinite
    double power = 1.0;
    for (int i = 0; i < n && i < kLargestPower; ++i)
        power *= Factor(UN_SectionLength);
    return power;
}
