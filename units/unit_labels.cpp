// The labels of CVARDUnits, put together from the labels of the chosen units.
#include "foundation/vard_string.h"
#include "units/units.h"

namespace {
constexpr unsigned int kLengthLabels = 55025;  // string resource: labels of lengths, a line each
constexpr int kMetreLine = 4;                  // where the metre stands in it
}  // namespace

CString CVARDUnits::GetUnitString(TEUnit unit) const
{
    if (unit < 0 || unit >= kRoom)
        return CString();
    return m_units[unit].name;
}

CString CVARDUnits::GetUnitStr_Gamma() const
{
    return Label(UN_Mass) + "/" + Label(UN_Length) + "3";
}

CString CVARDUnits::GetUnitStr_K() const
{
    return "1/" + Label(UN_Temperature);
}

CString CVARDUnits::GetUnitStr_StiffPoint() const
{
    return GetMomentStr() + "/" + Label(UN_Angle);
}

CString CVARDUnits::GetUnitStr_StiffLine() const
{
    return GetMomentStr() + "/" + Label(UN_Length) + "/" + Label(UN_Angle);
}

CString CVARDUnits::GetUnitStr_Stiff_FAR() const
{
    return GetLineLoadForceStr();
}

CString CVARDUnits::GetUnitStr_Stiff_FAR_Rot() const
{
    return GetUnitStr_StiffPoint();
}

CString CVARDUnits::GetUnitStr_MassRotation() const
{
    return Label(UN_Mass) + "*" + Label(UN_Length) + "2";
}

CString CVARDUnits::GetLineLoadForceStr() const
{
    return Label(UN_Force) + "/" + Label(UN_ForceLength);
}

CString CVARDUnits::GetPlaneLoadForceStr() const
{
    return GetLineLoadForceStr() + "2";
}

CString CVARDUnits::GetMomentStr() const
{
    return Label(UN_Force) + Label(UN_ForceLength);
}

CString CVARDUnits::GetLineLoadMomentStr() const
{
    return GetMomentStr() + "/" + Label(UN_ForceLength);
}

CString CVARDUnits::GetAngleLoadMomentStr() const
{
    return GetUnitStr_StiffPoint();
}

CString CVARDUnits::GetGravityStr() const
{
    return GetLineLoadForceStr() + "3";
}

CString CVARDUnits::GetUnitFoundationC1() const
{
    return Label(UN_Stress) + "/" + Label(UN_Length);
}

CString CVARDUnits::GetUnitFoundationC2() const
{
    return Label(UN_Stress) + " " + Label(UN_Length);
}

CString CVARDUnits::GetUnitFoundationC1Beam() const
{
    return Label(UN_Stress);
}

CString CVARDUnits::GetUnitFoundationC2Beam() const
{
    return GetUnitFoundationC2() + "2";
}

CString CVARDUnits::GetUnitStringDimAreaPerMeter() const
{
    CString lengths;
    lengths.LoadString(kLengthLabels);
    return Label(UN_Area) + "/" + CVARDString(lengths).GetSubString(kMetreLine, "\n");
}

CString CVARDUnits::GetMassOnVolume() const
{
    return Label(UN_Mass) + "/" + Label(UN_ForceLength) + "3";
}

CString CVARDUnits::GetUnitArea(CString const & label) const
{
    return label + "2";
}

CString CVARDUnits::GetUnitInertia(CString const & label) const
{
    return label + "4";
}

CString CVARDUnits::GetUnitIOmega(CString const & label) const
{
    return label + "6";
}

CString CVARDUnits::GetUnitTemp(CString const & label) const
{
    return label + "3";
}

CString CVARDUnits::GetUnitVolume(CString const & label) const
{
    return label + "3";
}
