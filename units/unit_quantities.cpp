// The table of the compound quantities: what each is multiplied by and how it is labelled.
#include <array>

#include "units/units.h"

// What a compound quantity consists of.
struct CVARDUnits::Quantity
{
    TEUnitExt unit;
    double (CVARDUnits::*factor)() const;
    CString (CVARDUnits::*label)() const;

    static Quantity const & Of(TEUnitExt unit);
};

CVARDUnits::Quantity const & CVARDUnits::Quantity::Of(TEUnitExt unit)
{
    using Units = CVARDUnits;
    // In the order of the numbers. The plain quantities convert towards the project only, which is told where
    // it is done; two quantities that are no volume forces are labelled as such on purpose.
    static constexpr std::array<Quantity, 36> kQuantities = {{
        {UE_None, &Units::FactorNone, &Units::LabelNone},
        {UE_Gamma, &Units::FactorGamma, &Units::GetUnitStr_Gamma},
        {UE_K, &Units::FactorK, &Units::GetUnitStr_K},
        {UE_Plain3, &Units::FactorNone, &Units::LabelNone},
        {UE_Plain4, &Units::FactorNone, &Units::LabelNone},
        {UE_Plain5, &Units::FactorNone, &Units::LabelNone},
        {UE_SecArea, &Units::FactorSectionArea, &Units::LabelSectionArea},
        {UE_SecInertia, &Units::FactorSectionInertia, &Units::LabelSectionInertia},
        {UE_SecIOmega, &Units::FactorSectionIOmega, &Units::LabelSectionIOmega},
        {UE_SecModulus, &Units::FactorSectionModulus, &Units::LabelSectionModulus},
        {UE_LineForce, &Units::FactorLineForce, &Units::GetLineLoadForceStr},
        {UE_PlaneForce, &Units::FactorPlaneForce, &Units::GetPlaneLoadForceStr},
        {UE_Force, &Units::FactorForce, &Units::LabelForce},
        {UE_Moment, &Units::FactorMoment, &Units::GetMomentStr},
        {UE_Displacement, &Units::FactorDisplacement, &Units::LabelDisplacement},
        {UE_Rotation, &Units::FactorRotation, &Units::LabelRotation},
        {UE_LineMoment, &Units::FactorForce, &Units::GetLineLoadMomentStr},
        {UE_AngleMoment, &Units::FactorMomentPerAngle, &Units::GetAngleLoadMomentStr},
        {UE_ForcePerAngle, &Units::FactorForcePerAngle, &Units::GetGravityStr},
        {UE_TempPerLength, &Units::FactorTemperaturePerLength, &Units::GetGravityStr},
        {UE_FoundationC1, &Units::FactorFoundationC1, &Units::GetUnitFoundationC1},
        {UE_FoundationC2, &Units::FactorFoundationC2, &Units::GetUnitFoundationC2},
        {UE_FoundationC1Beam, &Units::FactorFoundationC1Beam, &Units::GetUnitFoundationC1Beam},
        {UE_FoundationC2Beam, &Units::FactorFoundationC2Beam, &Units::GetUnitFoundationC2Beam},
        {UE_StiffPoint, &Units::FactorMomentPerAngle, &Units::GetUnitStr_StiffPoint},
        {UE_StiffLine, &Units::FactorStiffLine, &Units::GetUnitStr_StiffLine},
        {UE_StiffFAR, &Units::FactorLineForce, &Units::GetUnitStr_Stiff_FAR},
        {UE_Stress, &Units::FactorStress, &Units::LabelStress},
        {UE_Gravity, &Units::FactorGravity, &Units::GetGravityStr},
        {UE_MassRotation, &Units::FactorMassRotation, &Units::GetUnitStr_MassRotation},
        {UE_DimArea, &Units::FactorDesignArea, &Units::LabelDesignArea},
        {UE_DimSmallLength, &Units::FactorSmallLength, &Units::LabelSmallLength},
        {UE_DimPercent, &Units::FactorPercent, &Units::LabelPercent},
        {UE_DimAreaPerMeter, &Units::FactorDesignArea, &Units::GetUnitStringDimAreaPerMeter},
        {UE_StiffFARRot, &Units::FactorMomentPerAngle, &Units::GetUnitStr_Stiff_FAR_Rot},
        {UE_MassOnVolume, &Units::FactorMassOnVolume, &Units::GetMassOnVolume},
    }};
    bool const isKnown = unit >= 0 && unit < static_cast<int>(kQuantities.size());
    return kQuantities[isKnown ? static_cast<std::size_t>(unit) : 0];
}

double CVARDUnits::SetValToProjectExt(double value, TEUnitExt unit) const
{
    bool const isPlain = unit >= UE_Plain3 && unit <= UE_Plain5;
    return value * (isPlain ? FactorSectionArea() : (this->*Quantity::Of(unit).factor)());
}

double CVARDUnits::GetProjectToValExt(double value, TEUnitExt unit) const
{
    return value / (this->*Quantity::Of(unit).factor)();
}

CString CVARDUnits::GetUnitStringExt(TEUnitExt unit) const
{
    return (this->*Quantity::Of(unit).label)();
}
