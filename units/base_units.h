#ifndef KX7_UNITS_BASE_UNITS_H
#define KX7_UNITS_BASE_UNITS_H

#include <array>
#include <memory>

#include "foundation/languages.h"
#include "platform/base/array.h"
#include "platform/base/combo_box.h"
#include "platform/base/export.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

/// Every unit of measure that a user can choose. The numbers stand in project files.
enum TEBaseUnit : int
{
    BU_mm = 0,
    BU_cm = 1,
    BU_dm = 2,
    BU_m = 3,
    BU_inch = 4,
    BU_ft = 5,
    BU_yd = 6,
    BU_rad = 7,
    BU_deg = 8,
    BU_gra = 9,
    BU_N = 10,
    BU_kN = 11,
    BU_MN = 12,
    BU_lbf = 13,
    BU_Pa = 14,
    BU_kPa = 15,
    BU_MPa = 16,
    BU_psi = 17,
    BU_g = 18,
    BU_dkg = 19,
    BU_kg = 20,
    BU_t = 21,
    BU_lbm = 22,
    BU_sec = 23,
    BU_min = 24,
    BU_hod = 25,
    BU_degC = 26,
    BU_mm2 = 27,
    BU_cm2 = 28,
    BU_dm2 = 29,
    BU_m2 = 30,
    BU_inch2 = 31,
    BU_ft2 = 32,
    BU_yd2 = 33,
    BU_percent = 34,
    BU_Nmm2 = 35,
    BU_kNcm2 = 36,
    BU_Nm2 = 37,
    BU_kNm2 = 38
};

/// The kinds of quantity for which a unit can be chosen.
enum TEUnit : int
{
    UN_Length = 0,         ///< Lengths of the model.
    UN_Angle = 1,          ///< Angles.
    UN_Force = 2,          ///< Forces.
    UN_Stress = 3,         ///< Stresses and pressures.
    UN_ForceLength = 4,    ///< Lever arm and spread length of loads and stiffnesses.
    UN_SectionLength = 5,  ///< Cross-section distances.
    UN_Angle2 = 6,         ///< Second angle.
    UN_Displacement = 7,   ///< Displacements.
    UN_Rotation = 8,       ///< Rotations.
    UN_Unused9 = 9,        ///< No quantity: an empty list.
    UN_Unused10 = 10,      ///< No quantity: an empty list.
    UN_Unused11 = 11,      ///< No quantity: an empty list.
    UN_Mass = 12,          ///< Masses.
    UN_Time = 13,          ///< Times.
    UN_Temperature = 14,   ///< Temperatures.
    UN_Area = 15,          ///< Design areas.
    UN_SmallLength = 16,   ///< Small lengths.
    UN_Percent = 17        ///< Ratios.
};

/// How many kinds of quantity there are.
constexpr int kUnitCount = 18;

/// One unit of measure. The record also stands in project files, so its form is fixed at 24 bytes.
struct TSBaseUnit
{
    TEBaseUnit id;  ///< Which unit.
    char name[12];  ///< Label in code page 1250, at most 9 bytes, filled up with zeros.
    double factor;  ///< Project value = shown value * factor.
};
static_assert(sizeof(TSBaseUnit) == 24, "the record's form is fixed by the project files");

/// The units that can be chosen for one kind of quantity, one of them the default.
class KX7_API CVARDBaseUnit : public CObject
{
    DECLARE_DYNCREATE(CVARDBaseUnit)

  public:
    CVARDBaseUnit() = default;

    /// Adds a unit behind the others and makes it the default if `setDefault` isn't 0. A unit whose name or
    /// id is in the list already changes nothing, the default included.
    void AddUnit(TSBaseUnit unit, int setDefault);

    /// The unit with that id; a record of zeros if there is none.
    TSBaseUnit GetBaseUnit(TEBaseUnit id) const;

    /// Always a record of zeros: units aren't looked up by name, and hosts rely on that answer.
    TSBaseUnit GetBaseUnit(char const * name) const;

    /// The default unit; a record of zeros for an empty list.
    TSBaseUnit GetDefaultBaseUnit() const;

    /// Fills the box with the labels, each with its id as the item's data, and selects the unit `selected`,
    /// or the default one if it isn't there. 1; 0 for a null box, an empty list (box cleared) or a box that
    /// takes no more (box cleared).
    int BaseUnitToComboBox(CComboBox * box, TEBaseUnit selected) const;

    /// Number of units in the list.
    int GetCount() const { return m_units.GetSize(); }

  private:
    int m_defaultIndex = 0;
    CArray<TSBaseUnit, TSBaseUnit const &> m_units;
};

/// The master table of all units and the list of each kind of quantity. Made once per run, when the language
/// is known, because the labels come from the language's resources; it must outlive the `CVARDUnits` that use
/// it.
class KX7_API CVARDBaseUnits
{
  public:
    /// Takes the labels from the string resources in force.
    CVARDBaseUnits();
    ~CVARDBaseUnits();
    CVARDBaseUnits(CVARDBaseUnits const &) = delete;
    CVARDBaseUnits & operator=(CVARDBaseUnits const &) = delete;

    /// Makes the 18 lists. The default stress unit is N/mm2 for GERMANY and kPa for every other language. 1,
    /// or 0 if memory runs out, with the lists made so far in place.
    int Create(ELanguages language);

    /// The unit `id` of the list of `unit`; a record of zeros if it isn't there. A `unit` that isn't one of
    /// the 18 stands for the first list.
    TSBaseUnit GetBaseUnit(TEUnit unit, TEBaseUnit id) const;

    /// The default of the list of `unit`. A `unit` that isn't one of the 18 stands for the first list.
    TSBaseUnit GetDefaultBaseUnit(TEUnit unit) const;

    /// As CVARDBaseUnit::BaseUnitToComboBox. A `unit` that isn't one of the 18 gives 0 and leaves the box
    /// alone, deliberately unlike the two lookups.
    int BaseUnitToComboBox(CComboBox * box, TEUnit unit, TEBaseUnit selected) const;

  protected:
    /// A record of the unit; the name is cut at 9 bytes.
    TSBaseUnit CreateBaseUnit(TEBaseUnit id, CString const & name, double factor) const;

  private:
    static constexpr int kBaseUnitCount = 39;

    CVARDBaseUnit const * ListOf(TEUnit unit) const;
    TSBaseUnit const & MasterUnit(TEBaseUnit id) const;
    void FillList(CVARDBaseUnit & list, TEUnit unit, ELanguages language) const;

    std::array<TSBaseUnit, kBaseUnitCount> m_masterTable{};
    std::array<std::unique_ptr<CVARDBaseUnit>, kUnitCount> m_lists;
};

#endif
