#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/section_levels.h"
#include "platform/base/array.h"

using namespace detail;

namespace {
constexpr double kNearLevel = 1e12;  // shear: sides within the step over this of a level lie along it
constexpr double kNoWidth = 1e5;     // shear: widths up to the step over this are none
constexpr double kSmallestShearCoefficient = 0.0001;
constexpr double kAlwaysCross = -1.0;

struct WholeSection
{
    double Ix = 0.0;
    double area = 0.0;
};

// Over the sides between the vertices of the closed outline.
WholeSection WholeOf(std::span<TUVect2D const> outline)
{
    WholeSection whole;
    for (std::size_t i = 0; i + 1 < outline.size(); ++i) {
        double const x = outline[i].x;
        double const y = outline[i].y;
        double const dx = outline[i + 1].x - x;
        double const dy = outline[i + 1].y - y;
        whole.Ix -= (4.0 * y * (y * y + dy * dy) + (6.0 * y * y + dy * dy) * dy) * dx;
        whole.area += x * dy - y * dx;
    }
    whole.Ix /= 12.0;
    whole.area /= 2.0;
    return whole;
}

// The integral of S squared over the width along the height, by the trapezium rule.
double ShearIntegral(SectionTable const & table)
{
    std::vector<SectionLevel> const & levels = table.levels;
    std::size_t const last = levels.size() - 1;
    double sum = 0.0;
    for (std::size_t k = 0; k <= last; ++k) {
        SectionLevel const & level = levels[k];
        if (!(std::fabs(level.width) > table.step / kNoWidth))
            continue;
        double const span = levels[k == 0 ? 0 : k - 1].y - levels[k == last ? last : k + 1].y;
        sum += level.staticMoment * level.staticMoment * span / level.width;
    }
    return sum / 2.0;
}
}  // namespace

int CMathematics::ComputePlastMoment(CArray<TUVect2D, TUVect2D &> & outline, double & modulus)
{
    SectionTable table = BuildSectionTable(outline.View());
    std::vector<SectionLevel> & levels = table.levels;
    if (levels.empty() || !SectionIntegrator(outline.View(), kAlwaysCross).Integrate(levels))
        return 0;
    double const half = WholeOf(outline.View()).area / 2.0;
    for (std::size_t k = 0; k + 1 < levels.size(); ++k) {
        SectionLevel const & upper = levels[k];
        SectionLevel const & lower = levels[k + 1];
        if (!(half > upper.area && half <= lower.area))
            continue;
        double const share = (half - upper.area) / (lower.area - upper.area);
        modulus = 2.0 * (upper.staticMoment + (lower.staticMoment - upper.staticMoment) * share);
        return 1;
    }
    return 0;
}

void CMathematics::ComputeShearCoef(CArray<TUVect2D, TUVect2D &> & outline, double & coefficient)
{
    SectionTable table = BuildSectionTable(outline.View());
    if (table.levels.empty() ||
        !SectionIntegrator(outline.View(), table.step / kNearLevel).Integrate(table.levels))
        return;
    WholeSection const whole = WholeOf(outline.View());
    double const ratio = whole.Ix * whole.Ix / (whole.area * ShearIntegral(table));
    // A ratio that isn't a number fails both comparisons.
    coefficient = ratio >= kSmallestShearCoefficient && ratio <= 1.0 ? ratio : 1.0;
}
