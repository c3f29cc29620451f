#include "units/base_units.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <span>

#include "foundation/vard_string.h"

IMPLEMENT_DYNCREATE(CVARDBaseUnit, CObject)

namespace {
constexpr int kLongestLabel = 9;  // bytes of a label that a record takes from the resource text

// Where a label comes from: a string resource holds the labels of one family, a line each.
struct LabelSource
{
    unsigned int resource;  // 0: no resource, the label is a percent sign
    int line;               // from 1
};

struct UnitDefinition
{
    TEBaseUnit id;
    LabelSource label;
    double factor;
};

// In the order of the master table. The factor of the mass pound stands as it is, ten times what a pound
// weighs: projects in pounds rely on it. The factor of BU_dm2 is 0.1 * 0.1 in doubles, one step above 0.01.
constexpr UnitDefinition kUnitDefinitions[] = {
    {BU_mm, {55025, 1}, 0.001},
    {BU_cm, {55025, 2}, 0.01},
    {BU_dm, {55025, 3}, 0.1},
    {BU_m, {55025, 4}, 1.0},
    {BU_inch, {55025, 5}, 0.0254},
    {BU_ft, {55025, 6}, 0.3048},
    {BU_yd, {55025, 7}, 0.9144},
    {BU_mm2, {55026, 1}, 0.000001},
    {BU_cm2, {55026, 2}, 0.0001},
    {BU_dm2, {55026, 3}, 0.010000000000000002},
    {BU_m2, {55026, 4}, 1.0},
    {BU_inch2, {55026, 5}, 0.00064516},
    {BU_ft2, {55026, 6}, 0.09290304},
    {BU_yd2, {55026, 7}, 0.83612736},
    {BU_rad, {55024, 1}, 1.0},
    {BU_deg, {55024, 2}, 0.017453292519943295},
    {BU_gra, {55024, 3}, 0.015707963267948967},
    {BU_N, {55027, 1}, 0.001},
    {BU_kN, {55027, 2}, 1.0},
    {BU_MN, {55027, 3}, 1000.0},
    {BU_lbf, {55027, 4}, 0.004448221},
    {BU_Pa, {55030, 1}, 0.001},
    {BU_kPa, {55030, 2}, 1.0},
    {BU_MPa, {55030, 3}, 1000.0},
    {BU_psi, {55030, 4}, 6.8948},
    {BU_Nmm2, {55030, 5}, 1000.0},
    {BU_kNcm2, {55030, 6}, 10000.0},
    {BU_Nm2, {55030, 7}, 0.001},
    {BU_kNm2, {55030, 8}, 1.0},
    {BU_g, {55028, 1}, 0.000001},
    {BU_dkg, {55028, 2}, 0.00001},
    {BU_kg, {55028, 3}, 0.001},
    {BU_t, {55028, 4}, 1.0},
    {BU_lbm, {55028, 5}, 0.00453592},
    {BU_sec, {55031, 1}, 1.0},
    {BU_min, {55031, 2}, 60.0},
    {BU_hod, {55031, 3}, 3600.0},
    {BU_degC, {55029, 1}, 1.0},
    {BU_percent, {0, 0}, 0.01},
};

constexpr TEBaseUnit kLengths[] = {BU_mm, BU_cm, BU_dm, BU_m, BU_inch, BU_ft, BU_yd};
constexpr TEBaseUnit kAreas[] = {BU_mm2, BU_cm2, BU_dm2, BU_m2, BU_inch2, BU_ft2, BU_yd2};
constexpr TEBaseUnit kAngles[] = {BU_rad, BU_deg, BU_gra};
constexpr TEBaseUnit kForces[] = {BU_N, BU_kN, BU_MN, BU_lbf};
constexpr TEBaseUnit kStresses[] = {BU_Pa, BU_kPa, BU_MPa, BU_psi, BU_Nmm2, BU_kNcm2, BU_Nm2, BU_kNm2};
constexpr TEBaseUnit kMasses[] = {BU_g, BU_dkg, BU_kg, BU_t, BU_lbm};
constexpr TEBaseUnit kTimes[] = {BU_sec, BU_min, BU_hod};
constexpr TEBaseUnit kTemperatures[] = {BU_degC};
constexpr TEBaseUnit kRatios[] = {BU_percent};

struct ListDefinition
{
    std::span<TEBaseUnit const> rows;
    TEBaseUnit defaultUnit;
};

ListDefinition const kListDefinitions[kUnitCount] = {
    {kLengths, BU_m},          // UN_Length
    {kAngles, BU_rad},         // UN_Angle
    {kForces, BU_kN},          // UN_Force
    {kStresses, BU_kPa},       // UN_Stress; another default for GERMANY
    {kLengths, BU_m},          // UN_ForceLength
    {kLengths, BU_m},          // UN_SectionLength
    {kAngles, BU_rad},         // UN_Angle2
    {kLengths, BU_m},          // UN_Displacement
    {kAngles, BU_deg},         // UN_Rotation
    {{}, BU_mm},               // UN_Unused9
    {{}, BU_mm},               // UN_Unused10
    {{}, BU_mm},               // UN_Unused11
    {kMasses, BU_t},           // UN_Mass
    {kTimes, BU_sec},          // UN_Time
    {kTemperatures, BU_degC},  // UN_Temperature
    {kAreas, BU_cm2},          // UN_Area
    {kLengths, BU_mm},         // UN_SmallLength
    {kRatios, BU_percent},     // UN_Percent
};

CString LoadLabel(LabelSource const & source)
{
    if (source.resource == 0)
        return "%";
    CString family;
    family.LoadString(source.resource);
    return CVARDString(family).GetSubString(source.line, "\n");
}

bool IsUnit(TEUnit unit)
{
    return unit >= 0 && unit < kUnitCount;
}

// Adds one labelled item with its data; false, with the box cleared, if the box takes no more.
bool AddItem(CComboBox & box, char const * label, std::uintptr_t data)
{
    int const item = box.AddString(label);
    if (item == CComboBox::kError || item == CComboBox::kErrorSpace) {
        box.ResetContent();
        return false;
    }
    box.SetItemData(item, data);
    return true;
}

// The item is sought by its data and not by its row, because the box may sort its items.
int FindItem(CComboBox & box, std::uintptr_t data)
{
    int const count = box.GetCount();
    for (int item = 0; item < count; ++item)
        if (box.GetItemData(item) == data)
            return item;
    return -1;
}
}  // namespace

void CVARDBaseUnit::AddUnit(TSBaseUnit unit, int setDefault)
{
    for (TSBaseUnit const & known : m_units)
        if (known.id == unit.id || std::strncmp(known.name, unit.name, sizeof(unit.name)) == 0)
            return;
    m_units.Add(unit);
    if (setDefault != 0)
        m_defaultIndex = m_units.GetSize() - 1;
}

TSBaseUnit CVARDBaseUnit::GetBaseUnit(TEBaseUnit id) const
{
    for (TSBaseUnit const & unit : m_units)
        if (unit.id == id)
            return unit;
    return {};
}

TSBaseUnit CVARDBaseUnit::GetBaseUnit(char const *) const
{
    return {};
}

TSBaseUnit CVARDBaseUnit::GetDefaultBaseUnit() const
{
    return m_defaultIndex < m_units.GetSize() ? m_units.GetAt(m_defaultIndex) : TSBaseUnit{};
}

int CVARDBaseUnit::BaseUnitToComboBox(CComboBox * box, TEBaseUnit selected) const
{
    if (!box)
        return 0;
    box->ResetContent();
    if (m_units.GetSize() == 0)
        return 0;
    for (TSBaseUnit const & unit : m_units)
        if (!AddItem(*box, unit.name, static_cast<std::uintptr_t>(unit.id)))
            return 0;
    int const item = FindItem(*box, static_cast<std::uintptr_t>(selected));
    // The default goes by its row, whatever the box did with the order of its items.
    box->SetCurSel(item >= 0 ? item : m_defaultIndex);
    return 1;
}

CVARDBaseUnits::CVARDBaseUnits()
{
    static_assert(std::size(kUnitDefinitions) == kBaseUnitCount);
    std::transform(std::begin(kUnitDefinitions), std::end(kUnitDefinitions), m_masterTable.begin(),
                   [this](UnitDefinition const & unit) {
                       return CreateBaseUnit(unit.id, LoadLabel(unit.label), unit.factor);
                   });
}

CVARDBaseUnits::~CVARDBaseUnits() = default;

int CVARDBaseUnits::Create(ELanguages language)
{
    try {
        for (int unit = 0; unit < kUnitCount; ++unit) {
            auto & list = m_lists[static_cast<std::size_t>(unit)];
            list = std::make_unique<CVARDBaseUnit>();
            FillList(*list, static_cast<TEUnit>(unit), language);
        }
    } catch (std::bad_alloc const &) {
        return 0;
    }
    return 1;
}

TSBaseUnit CVARDBaseUnits::GetBaseUnit(TEUnit unit, TEBaseUnit id) const
{
    CVARDBaseUnit const * list = ListOf(unit);
    return list ? list->GetBaseUnit(id) : TSBaseUnit{};
}

TSBaseUnit CVARDBaseUnits::GetDefaultBaseUnit(TEUnit unit) const
{
    CVARDBaseUnit const * list = ListOf(unit);
    return list ? list->GetDefaultBaseUnit() : TSBaseUnit{};
}

int CVARDBaseUnits::BaseUnitToComboBox(CComboBox * box, TEUnit unit, TEBaseUnit selected) const
{
    if (!IsUnit(unit))
        return 0;
    CVARDBaseUnit const * list = ListOf(unit);
    return list ? list->BaseUnitToComboBox(box, selected) : 0;
}

TSBaseUnit CVARDBaseUnits::CreateBaseUnit(TEBaseUnit id, CString const & name, double factor) const
{
    TSBaseUnit unit{};
    unit.id = id;
    unit.factor = factor;
    std::memcpy(unit.name, static_cast<char const *>(name),
                static_cast<std::size_t>(std::min(name.GetLength(), kLongestLabel)));
    return unit;
}

CVARDBaseUnit const * CVARDBaseUnits::ListOf(TEUnit unit) const
{
    return m_lists[IsUnit(unit) ? static_cast<std::size_t>(unit) : 0].get();
}

TSBaseUnit const & CVARDBaseUnits::MasterUnit(TEBaseUnit id) const
{
    return *std::find_if(m_masterTable.begin(), m_masterTable.end(),
                         [id](TSBaseUnit const & unit) { return unit.id == id; });
}

void CVARDBaseUnits::FillList(CVARDBaseUnit & list, TEUnit unit, ELanguages language) const
{
    ListDefinition const & definition = kListDefinitions[unit];
    TEBaseUnit const defaultUnit =
        unit == UN_Stress && language == GERMANY ? BU_Nmm2 : definition.defaultUnit;
    for (TEBaseUnit id : definition.rows)
        list.AddUnit(MasterUnit(id), id == defaultUnit ? 1 : 0);
}
