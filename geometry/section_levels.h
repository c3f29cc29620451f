#ifndef KX7_GEOMETRY_SECTION_LEVELS_H
#define KX7_GEOMETRY_SECTION_LEVELS_H

// The level integration of cross-sections: a table of heights from the top of a section to its bottom, and
// for each the static moment, area and width of what lies above. Used by the plastic modulus and the shear
// coefficient.

#include <cstddef>
#include <span>
#include <vector>

#include "geometry/records.h"
#include "platform/base/export.h"

namespace detail {
/// What lies above one height of a section.
struct SectionLevel
{
    double y = 0.0;             ///< The height.
    double staticMoment = 0.0;  ///< Static moment about y = 0 of the part above.
    double area = 0.0;          ///< Area of the part above.
    double width = 0.0;         ///< Width of the section at the height.
};

/// The heights of a section, from the top down.
struct SectionTable
{
    std::vector<SectionLevel> levels;
    double step = 0.0;  ///< A hundredth of the section's height.
};

/// The table of an outline: a level just inside the top, one at each vertex, two close ones on both sides of
/// a horizontal side, and levels between so that none are further apart than the step. Only the heights are
/// filled. Empty if a height isn't a finite number.
KX7_API SectionTable BuildSectionTable(std::span<TUVect2D const> outline);

/// Integrates the part of an outline above levels. Walking the sides once for each level is the definition;
/// Integrate takes levels that stand together at a time, which leaves every sum, in its order, as it is.
class KX7_API SectionIntegrator
{
  public:
    /// A side whose ends both lie within `nearLevel` of a level doesn't cross it; below 0 every side may.
    SectionIntegrator(std::span<TUVect2D const> outline, double nearLevel);

    /// Fills the levels. False if one has no vertex at or above it.
    bool Integrate(std::span<SectionLevel> levels) const;

    /// The same level by level, the plain way.
    bool IntegratePlainly(std::span<SectionLevel> levels) const;

  private:
    // A walk round the outline for one level.
    struct Walk
    {
        double level = 0.0;
        std::size_t start = 0;  // first vertex at or above the level
        double crossing = 0.0;  // x where the walk went below
        double width = 0.0;
        bool above = true;
    };

    // Sums of the boundary integrals, without their common divisors.
    struct Sums
    {
        double staticMoment = 0.0;
        double area = 0.0;
    };

    static constexpr std::size_t kLanes = 8;  // levels taken together
    struct Lanes;

    static Sums SumsOfPiece(TUVect2D const & from, TUVect2D const & to);
    static void Add(Sums & sums, Sums const & piece);
    static void Fill(SectionLevel & level, Walk const & walk, Sums const & sums);

    Walk WalkAt(double level) const;
    void Step(Walk & walk, Sums & sums, std::size_t side) const;
    void Cross(Walk & walk, Sums & sums, std::size_t side) const;
    bool IntegrateLanes(std::span<SectionLevel> levels) const;
    bool PrepareLanes(Lanes & lanes, std::span<SectionLevel const> levels) const;
    void StepLanes(Lanes & lanes, std::size_t side) const;
    void FinishWalk(Walk & walk, Sums & sums) const;

    std::vector<TUVect2D> m_vertices;    // the first one again behind the last
    std::vector<Sums> m_sides;           // what each whole side adds
    std::vector<double> m_highestSoFar;  // highest vertex up to each
    double m_nearLevel;
};
}  // namespace detail

#endif
