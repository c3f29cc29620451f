#ifndef KX7_EXAMPLES_SECTION_TEXTS_H
#define KX7_EXAMPLES_SECTION_TEXTS_H

#include <string>

#include "KX7Utlt.h"

/// The program's own texts.
enum class ETexts
{
    kArea,
    kFlattenedArea,
    kPerimeter,
    kStaticX,
    kStaticY,
    kCentroidX,
    kCentroidY,
    kInertiaX,
    kInertiaY,
    kInertiaXY,
    kPrincipal1,
    kPrincipal2,
    kPrincipalAngle,
    kGyrationX,
    kGyrationY,
    kGyration1,
    kGyration2,
    kModulusTop,
    kModulusBottom,
    kModulusRight,
    kModulusLeft,
    kPlasticX,
    kPlasticY,
    kShearX,
    kShearY,
    kWidth,
    kAreaError,
    kBody,
    kAllTogether,
    kOutlines,
    kCommonArea,
    kTriangles,
    kMeshArea,
    kCount
};

/// A text in UTF-8: Czech, German, and English for every other language.
std::string Text(ETexts text, ELanguages language);

#endif
