#ifndef KX7_UNITS_UNITS_H
#define KX7_UNITS_UNITS_H

#include "foundation/languages.h"
#include "platform/base/combo_box.h"
#include "platform/base/export.h"
#include "platform/base/object.h"
#include "platform/base/string.h"
#include "units/base_units.h"

class CArchive;

/// Compound quantities: their factor and label follow from the chosen units. Below, `length`, `angle`,
/// `force` and so on mean the chosen unit of that kind, `arm` the lever-arm length, `section` the
/// cross-section distance.
enum TEUnitExt : int
{
    UE_None = 0,
    UE_Gamma = 1,              ///< Mass / length^3.
    UE_K = 2,                  ///< 1 / temperature.
    UE_Plain3 = 3,             ///< To the project section^2, from the project unchanged. No label.
    UE_Plain4 = 4,             ///< As UE_Plain3.
    UE_Plain5 = 5,             ///< As UE_Plain3.
    UE_SecArea = 6,            ///< Section^2.
    UE_SecInertia = 7,         ///< Section^4.
    UE_SecIOmega = 8,          ///< Section^6.
    UE_SecModulus = 9,         ///< Section^3.
    UE_LineForce = 10,         ///< Force / arm.
    UE_PlaneForce = 11,        ///< Force / arm^2.
    UE_Force = 12,             ///< Force.
    UE_Moment = 13,            ///< Force * arm.
    UE_Displacement = 14,      ///< Displacement.
    UE_Rotation = 15,          ///< Rotation.
    UE_LineMoment = 16,        ///< Force * arm / arm.
    UE_AngleMoment = 17,       ///< Force * arm / angle.
    UE_ForcePerAngle = 18,     ///< Force / angle, labelled as a volume force.
    UE_TempPerLength = 19,     ///< Temperature / length, labelled as a volume force.
    UE_FoundationC1 = 20,      ///< Stress / length.
    UE_FoundationC2 = 21,      ///< Stress * length.
    UE_FoundationC1Beam = 22,  ///< Stress / length * length, rounded in this order.
    UE_FoundationC2Beam = 23,  ///< Stress * length * length.
    UE_StiffPoint = 24,        ///< Force * arm / angle.
    UE_StiffLine = 25,         ///< Force * arm / length / angle.
    UE_StiffFAR = 26,          ///< Force / arm.
    UE_Stress = 27,            ///< Stress.
    UE_Gravity = 28,           ///< Force / arm^3.
    UE_MassRotation = 29,      ///< 1 / (mass * length^2), although the label reads as the product.
    UE_DimArea = 30,           ///< Design area.
    UE_DimSmallLength = 31,    ///< Small length.
    UE_DimPercent = 32,        ///< Ratio.
    UE_DimAreaPerMeter = 33,   ///< Design area, labelled per metre.
    UE_StiffFARRot = 34,       ///< Force * arm / angle.
    UE_MassOnVolume = 35       ///< Mass / arm^3.
};

/// Kinds of value that a host draws as isolines. The names belong to the hosts, which use any of the numbers;
/// here only their order matters (CVARDUnits::GetUnitTypeIzo).
enum EEValueType : int
{
};

/// The unit system of one project: for each kind of quantity the unit in which values are shown.
///
/// A project value is the shown value multiplied by a factor; a shown value is the project value divided by
/// the same factor, which is computed first, in the order given with each operation. Operations named
/// `SetValTo...` and `SetProjectTo...` go to the project; `Get...ToVal` and `GetProjectTo...` come from it.
class KX7_API CVARDUnits : public CObject
{
    DECLARE_DYNCREATE(CVARDUnits)

  public:
    /// How many records `m_units` has room for; the first kUnitCount are in use.
    static constexpr int kRoom = 20;

    /// All units are records of zeros: Create or ReadElements comes first.
    CVARDUnits() = default;

    /// Chooses the start values of a project from `base`, which stays the host's and must outlive this
    /// object. Stress starts in N/mm2 for GERMANY and kPa otherwise, small lengths in cm for ENGLISH and mm
    /// otherwise.
    void Create(CVARDBaseUnits * base, ELanguages language);

    /// value * factor of the unit. A `unit` outside the records gives 0.
    double SetValToProject(double value, TEUnit unit) const;

    /// value / factor of the unit. The three unused units have a factor of 0.
    double GetProjectToVal(double value, TEUnit unit) const;

    /// The same for a compound quantity; `value` itself for one outside 1 to 35.
    double SetValToProjectExt(double value, TEUnitExt unit) const;

    /// The same for a compound quantity; `value` itself for one outside 1 to 35 and for UE_Plain3 to
    /// UE_Plain5, which deliberately convert in one direction only.
    double GetProjectToValExt(double value, TEUnitExt unit) const;

    /// The label of the chosen unit.
    CString GetUnitString(TEUnit unit) const;

    /// The label of a compound quantity; empty outside 1 to 35 and for UE_Plain3 to UE_Plain5.
    CString GetUnitStringExt(TEUnitExt unit) const;

    /// The shown value of a project value as text (CVARDString::Str with `width` and `decimals`, -1 each for
    /// free width and three decimals), followed by a blank and the label if `withUnit` isn't 0.
    CString GetFormatedString(double value, TEUnit unit, int withUnit, int width, int decimals) const;
    CString GetFormatedString(double value, TEUnitExt unit, int withUnit, int width, int decimals) const;

    /// Fills the box with the units of the kind and selects the chosen one
    /// (CVARDBaseUnits::BaseUnitToComboBox). 0 before Create.
    int BaseUnitToComboBox(CComboBox * box, TEUnit unit) const;

    CVARDBaseUnits * GetVARDBaseUnits() const { return m_baseUnits; }

    /// CVARDBaseUnits::GetBaseUnit and GetDefaultBaseUnit; records of zeros before Create.
    TSBaseUnit GetBaseUnits(TEUnit unit, TEBaseUnit id) const;
    TSBaseUnit GetDefaultBaseUnits(TEUnit unit) const;

    /// The id of the chosen unit.
    TEBaseUnit GetTypeBaseUnit(TEUnit unit) const;

    /// The quantity of a value drawn as isolines, by its number.
    TEUnitExt GetUnitTypeIzo(EEValueType type) const;

    /// The quantity of a design result by its number, for a member and for a desk (slab) result. The two
    /// differ for areas, which a desk has per metre, and for number 36.
    TEUnitExt GetUnitTypeDIM(int type) const;
    TEUnitExt GetUnitTypeOnDeskDIM(int type) const;

    /// Writes the units' block: "UNITS" with seven blanks and a NUL, the record size 24, the count 18, then
    /// the records. Always 1; failures of the archive come as its exceptions.
    int WriteElements(CArchive & archive) const;

    /// Reads such a block over the units in place, labels and factors included. 0 for a block that is foreign
    /// or cut short (the units as far as they were read), and for a count above kRoom (nothing changed).
    int ReadElements(CArchive & archive);

    /// Conversions of the compound quantities one by one. Factors: 1 / temperature;
    double SetValToK(double value) const { return value * FactorK(); }
    double GetK_ToVal(double value) const { return value / FactorK(); }
    /// mass / (length * length * length);
    double SetValToGamma(double value) const { return value * FactorGamma(); }
    double GetGamma_ToVal(double value) const { return value / FactorGamma(); }
    /// force * arm / angle;
    double SetValToStiffPoint(double value) const { return value * FactorMomentPerAngle(); }
    double SetValToStiff_FAR_Rot(double value) const { return value * FactorMomentPerAngle(); }
    double SetValTo_FxmIrad(double value) const { return value * FactorMomentPerAngle(); }
    double GetStiffPointToVal(double value) const { return value / FactorMomentPerAngle(); }
    double GetStiff_FAR_RotToVal(double value) const { return value / FactorMomentPerAngle(); }
    double GetProjectTo_FxmIrad(double value) const { return value / FactorMomentPerAngle(); }
    /// force * arm / length / angle;
    double SetValToStiffLine(double value) const { return value * FactorStiffLine(); }
    double GetStiffLineToVal(double value) const { return value / FactorStiffLine(); }
    /// force / arm;
    double SetValToStiff_FAR(double value) const { return value * FactorLineForce(); }
    double SetValTo_FIm(double value) const { return value * FactorLineForce(); }
    double GetStiff_FARToVal(double value) const { return value / FactorLineForce(); }
    double GetProjectTo_FIm(double value) const { return value / FactorLineForce(); }
    /// force;
    double SetValTo_FxmIm(double value) const { return value * Factor(UN_Force); }
    double GetProjectTo_FxmIm(double value) const { return value / Factor(UN_Force); }
    /// force / arm / arm;
    double SetValTo_FImxm(double value) const { return value * FactorPlaneForce(); }
    double GetProjectTo_FImxm(double value) const { return value / FactorPlaneForce(); }
    /// force * arm;
    double SetValTo_Fxm(double value) const { return value * FactorMoment(); }
    double GetProjectTo_Fxm(double value) const { return value / FactorMoment(); }
    /// temperature / length;
    double SetValTo_KIm(double value) const { return value * FactorTemperaturePerLength(); }
    double GetProjectTo_KIm(double value) const { return value / FactorTemperaturePerLength(); }
    /// force / angle;
    double SetValTo_FIrad(double value) const { return value * FactorForcePerAngle(); }
    double GetProjectTo_FIrad(double value) const { return value / FactorForcePerAngle(); }
    /// force / arm / arm / arm;
    double SetValTo_Gravity(double value) const { return value * FactorGravity(); }
    double GetProjectTo_Gravity(double value) const { return value / FactorGravity(); }
    /// mass / arm / arm / arm;
    double SetValTo_tImImIm(double value) const { return value * FactorMassOnVolume(); }
    double GetProjectTo_tImImIm(double value) const { return value / FactorMassOnVolume(); }
    /// 1 / (mass * length * length);
    double SetValToMassRotation(double value) const { return value * FactorMassRotation(); }
    double GetMassRotationToVal(double value) const { return value / FactorMassRotation(); }
    /// section to the power `n` (1 for an `n` below 1);
    double SetValTo_XSdistPower(double value, int n) const { return value * SectionPower(n); }
    double GetProjectTo_XSdistPower(double value, int n) const { return value / SectionPower(n); }
    /// stress / length; stress * length; stress / length * length; stress * length * length.
    double SetProjectToFoundationC1(double value) const { return value * FactorFoundationC1(); }
    double GetProjectToFoundationC1(double value) const { return value / FactorFoundationC1(); }
    double SetProjectToFoundationC2(double value) const { return value * FactorFoundationC2(); }
    double GetProjectToFoundationC2(double value) const { return value / FactorFoundationC2(); }
    double SetProjectToFoundationC1Beam(double value) const { return value * FactorFoundationC1Beam(); }
    double GetProjectToFoundationC1Beam(double value) const { return value / FactorFoundationC1Beam(); }
    double SetProjectToFoundationC2Beam(double value) const { return value * FactorFoundationC2Beam(); }
    double GetProjectToFoundationC2Beam(double value) const { return value / FactorFoundationC2Beam(); }

    /// Labels of the compound quantities; the examples are those of kN, m, rad, t, kPa.
    CString GetUnitStr_Gamma() const;                     ///< "t/m3"
    CString GetUnitStr_K() const;                         ///< "1/°C"
    CString GetUnitStr_StiffPoint() const;                ///< "kNm/rad"
    CString GetUnitStr_StiffLine() const;                 ///< "kNm/m/rad"
    CString GetUnitStr_Stiff_FAR() const;                 ///< "kN/m"
    CString GetUnitStr_Stiff_FAR_Rot() const;             ///< "kNm/rad"
    CString GetUnitStr_MassRotation() const;              ///< "t*m2"
    CString GetLineLoadForceStr() const;                  ///< "kN/m"
    CString GetPlaneLoadForceStr() const;                 ///< "kN/m2"
    CString GetMomentStr() const;                         ///< "kNm"
    CString GetLineLoadMomentStr() const;                 ///< "kNm/m"
    CString GetAngleLoadMomentStr() const;                ///< "kNm/rad"
    CString GetGravityStr() const;                        ///< "kN/m3"
    CString GetUnitFoundationC1() const;                  ///< "kPa/m"
    CString GetUnitFoundationC2() const;                  ///< "kPa m"
    CString GetUnitFoundationC1Beam() const;              ///< "kPa"
    CString GetUnitFoundationC2Beam() const;              ///< "kPa m2"
    CString GetUnitStringDimAreaPerMeter() const;         ///< "cm^2/m", the metre in the current language
    CString GetMassOnVolume() const;                      ///< "t/m3", by the lever arm's unit
    CString GetUnitArea(CString const & label) const;     ///< label with "2"
    CString GetUnitInertia(CString const & label) const;  ///< label with "4"
    CString GetUnitIOmega(CString const & label) const;   ///< label with "6"
    CString GetUnitTemp(CString const & label) const;     ///< label with "3"
    CString GetUnitVolume(CString const & label) const;   ///< label with "3"

  private:
    struct Quantity;

    double Factor(TEUnit unit) const;
    double SectionPower(int n) const;
    CString Label(TEUnit unit) const { return GetUnitString(unit); }

    // The factors of the compound quantities, computed in this order of operations.
    double FactorNone() const { return 1.0; }
    double FactorGamma() const;
    double FactorK() const { return 1.0 / Factor(UN_Temperature); }
    double FactorSectionArea() const { return SectionPower(2); }
    double FactorSectionInertia() const { return SectionPower(4); }
    double FactorSectionIOmega() const { return SectionPower(6); }
    double FactorSectionModulus() const { return SectionPower(3); }
    double FactorLineForce() const { return Factor(UN_Force) / Factor(UN_ForceLength); }
    double FactorPlaneForce() const { return FactorLineForce() / Factor(UN_ForceLength); }
    double FactorForce() const { return Factor(UN_Force); }
    double FactorMoment() const { return Factor(UN_Force) * Factor(UN_ForceLength); }
    double FactorDisplacement() const { return Factor(UN_Displacement); }
    double FactorRotation() const { return Factor(UN_Rotation); }
    double FactorMomentPerAngle() const { return FactorMoment() / Factor(UN_Angle); }
    double FactorForcePerAngle() const { return Factor(UN_Force) / Factor(UN_Angle); }
    double FactorTemperaturePerLength() const { return Factor(UN_Temperature) / Factor(UN_Length); }
    double FactorFoundationC1() const { return Factor(UN_Stress) / Factor(UN_Length); }
    double FactorFoundationC2() const { return Factor(UN_Stress) * Factor(UN_Length); }
    double FactorFoundationC1Beam() const { return FactorFoundationC1() * Factor(UN_Length); }
    double FactorFoundationC2Beam() const { return FactorFoundationC2() * Factor(UN_Length); }
    double FactorStiffLine() const { return FactorMoment() / Factor(UN_Length) / Factor(UN_Angle); }
    double FactorStress() const { return Factor(UN_Stress); }
    double FactorGravity() const { return FactorPlaneForce() / Factor(UN_ForceLength); }
    double FactorMassRotation() const;
    double FactorDesignArea() const { return Factor(UN_Area); }
    double FactorSmallLength() const { return Factor(UN_SmallLength); }
    double FactorPercent() const { return Factor(UN_Percent); }
    double FactorMassOnVolume() const;

    // The labels of the compound quantities that have no operation of their own.
    CString LabelNone() const { return CString(); }
    CString LabelSectionArea() const { return GetUnitArea(Label(UN_SectionLength)); }
    CString LabelSectionInertia() const { return GetUnitInertia(Label(UN_SectionLength)); }
    CString LabelSectionIOmega() const { return GetUnitIOmega(Label(UN_SectionLength)); }
    CString LabelSectionModulus() const { return GetUnitTemp(Label(UN_SectionLength)); }
    CString LabelForce() const { return Label(UN_Force); }
    CString LabelDisplacement() const { return Label(UN_Displacement); }
    CString LabelRotation() const { return Label(UN_Rotation); }
    CString LabelStress() const { return Label(UN_Stress); }
    CString LabelDesignArea() const { return Label(UN_Area); }
    CString LabelSmallLength() const { return Label(UN_SmallLength); }
    CString LabelPercent() const { return Label(UN_Percent); }

  public:
    /// The chosen units by TEUnit. A host changes a unit by writing the record here.
    TSBaseUnit m_units[kRoom] = {};

  private:
    CVARDBaseUnits * m_baseUnits = nullptr;
};

#endif
