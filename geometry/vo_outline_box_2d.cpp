#include "geometry/vo_outline_box_2d.h"

#include <algorithm>

#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
constexpr double kEmpty = 1e300;  // beyond every coordinate
}

CVOutlineBox2D::CVOutlineBox2D()
{
    Reset();
}

void CVOutlineBox2D::Reset()
{
    m_dMaxX = m_dMaxY = -kEmpty;
    m_dMinX = m_dMinY = kEmpty;
}

void CVOutlineBox2D::Add(TUVect2D point, double margin)
{
    m_dMaxX = std::max(m_dMaxX, point.x + margin);
    m_dMinX = std::min(m_dMinX, point.x - margin);
    m_dMaxY = std::max(m_dMaxY, point.y + margin);
    m_dMinY = std::min(m_dMinY, point.y - margin);
}

void CVOutlineBox2D::Add(TSelem element, double margin)
{
    // The signed bulge: an arc on the right of its chord makes the box smaller; hosts know it so.
    double const sagitta =
        element.type == EDGE_ARC ? Length(element.start - element.end) / 2.0 * element.bulge : 0.0;
    Add(element.start, margin + sagitta);
    Add(element.end, margin + sagitta);
}

int CVOutlineBox2D::Intersects(CVOutlineBox2D const & other) const
{
    bool const apart = other.m_dMaxX < m_dMinX || other.m_dMinX > m_dMaxX || other.m_dMaxY < m_dMinY ||
                       other.m_dMinY > m_dMaxY;
    return apart ? 0 : 1;
}
