#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"
#include "platform/base/array.h"

using namespace detail;

namespace {
constexpr double kAxisMargin = 1e-10;  // vertices this far behind the neutral axis still count as on it

bool IsBehind(double distance)
{
    return distance < -kAxisMargin;
}
}  // namespace

int CMathematics::GetPartOfPolygonAboveNeutralAxis(CArray<TUVect2D, TUVect2D &> & outline, TUVect2D axisPoint,
                                                   TUVect2D direction, CArray<TUVect2D, TUVect2D &> & part)
{
    part.RemoveAll();
    if (outline.IsEmpty())
        return 0;
    TUVect2D const u = Unit(direction);
    TUVect2D previous = outline[0];
    bool wasBehind = IsBehind(Dot(previous - axisPoint, u));
    for (int i = 1; i <= outline.GetSize(); ++i) {
        TUVect2D current = outline[i < outline.GetSize() ? i : 0];
        double const distance = Dot(current - axisPoint, u);
        bool const behind = IsBehind(distance);
        if (behind != wasBehind) {
            TUVect2D const side = current - previous;
            TUVect2D crossing = current - distance / Dot(side, u) * side;
            part.Add(crossing);
        }
        if (!behind)
            part.Add(current);
        wasBehind = behind;
        previous = current;
    }
    if (part.IsEmpty())
        return 0;
    TUVect2D first = part[0];
    part.Add(first);
    return 1;
}
