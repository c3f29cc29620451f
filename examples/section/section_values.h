#ifndef KX7_EXAMPLES_SECTION_SECTION_VALUES_H
#define KX7_EXAMPLES_SECTION_SECTION_VALUES_H

#include <vector>

#include "outlines.h"

/// The characteristics of a cross-section, lengths in metres, angles in radians. x runs right, y up; "Ix" is
/// the integral of y squared.
struct SectionValues
{
    double area;            ///< Of the straight-sided section that all values but the next two rest on.
    double exactArea;       ///< With the arcs.
    double perimeter;       ///< Of all outlines, along the arcs.
    double Sx, Sy;          ///< Static moments about the drawing's axes.
    double xc, yc;          ///< Centroid.
    double Ix, Iy, Ixy;     ///< About the drawing's axes.
    double Ixc, Iyc, Ixyc;  ///< About the centroid's axes.
    double I1, I2, alpha;   ///< Principal moments, and the angle from x to the axis of I1.
    double ix, iy, i1, i2;  ///< Radii of gyration.
    double WxTop, WxBottom, WyRight, WyLeft;  ///< Elastic section moduli.
    double WplX, WplY;                        ///< Plastic section moduli; 0 if there is none.
    double shearX, shearY;                    ///< Shear area over area for a force along x and along y.
    double widthAtCentroid;                   ///< Width of the section along x at the height of the centroid.
    outlines::Box box;                        ///< Extents.
};

/// Computes the section made of the outlines: bodies add, holes subtract. Arcs become chords that stay within
/// `bound` metres of them.
SectionValues ComputeSection(CMathematics & kernel, std::vector<outlines::Outline> const & section,
                             double bound);

#endif
