// Lines, crosses and filled polygons on a device, seen through a view matrix.

#include <vector>

#include "geometry/int_conversion.h"
#include "geometry/mathematics.h"
#include "platform/device/dc.h"

namespace {
HDC HandleOf(CDC const * dc)
{
    return dc ? dc->GetSafeHdc() : nullptr;
}

void DrawSegment(HDC hdc, POINT const & a, POINT const & b)
{
    ::MoveToEx(hdc, a.x, a.y, nullptr);
    ::LineTo(hdc, b.x, b.y);
}

/// Where a segment meets the sides of a rectangle: top, bottom, left, right. A corner counts once.
class SideHits
{
  public:
    SideHits(CMathematics & math, CRect const & rect, TUVect3D const & a, TUVect3D const & b)
    {
        double const left = rect.left;
        double const top = rect.top;
        double const right = rect.right;
        double const bottom = rect.bottom;
        TUVect3D const sides[][2] = {{{{left, top, 0}}, {{right, top, 0}}},
                                     {{{left, bottom, 0}}, {{right, bottom, 0}}},
                                     {{{left, top, 0}}, {{left, bottom, 0}}},
                                     {{{right, top, 0}}, {{right, bottom, 0}}}};
        for (auto const & side : sides) {
            TUVect3D p1;
            TUVect3D p2;
            int kind;
            if (math.LineIntersection(side[0], side[1], a, b, 1, p1, p2, kind))
                Add(p1);
        }
    }

    int Count() const { return m_count; }
    POINT At(int index) const { return m_points[index]; }

    /// The first hit away from a place; the place itself if there is none.
    POINT FirstAwayFrom(POINT const & place) const
    {
        for (int i = 0; i < m_count; ++i)
            if (m_points[i].x != place.x || m_points[i].y != place.y)
                return m_points[i];
        return place;
    }

  private:
    void Add(TUVect3D const & hit)
    {
        POINT const pixel = {detail::TruncatedToInt(hit.x), detail::TruncatedToInt(hit.y)};
        for (int i = 0; i < m_count; ++i)
            if (m_points[i].x == pixel.x && m_points[i].y == pixel.y)
                return;
        m_points[m_count++] = pixel;
    }

    POINT m_points[4];
    int m_count = 0;
};

/// Draws the part of a segment that crosses the border of the rectangle.
void DrawCrossing(CMathematics & math, HDC hdc, CRect const & rect, POINT const & a, POINT const & b)
{
    TUVect2D const corner1 = {{static_cast<double>(rect.left), static_cast<double>(rect.top)}};
    TUVect2D const corner2 = {{static_cast<double>(rect.right), static_cast<double>(rect.bottom)}};
    TUVect2D const start = {{static_cast<double>(a.x), static_cast<double>(a.y)}};
    TUVect2D const end = {{static_cast<double>(b.x), static_cast<double>(b.y)}};
    SideHits const hits(math, rect, {{start.x, start.y, 0}}, {{end.x, end.y, 0}});
    if (math.PointInRectangle(start, corner1, corner2))
        DrawSegment(hdc, a, hits.FirstAwayFrom(a));
    else if (math.PointInRectangle(end, corner1, corner2))
        DrawSegment(hdc, b, hits.FirstAwayFrom(b));
    else if (hits.Count() >= 2)
        DrawSegment(hdc, hits.At(0), hits.At(1));
}
}  // namespace

CRect CMathematics::GetScissorRect(HDC hdc)
{
    if (::GetDeviceCaps(hdc, TECHNOLOGY) == DT_RASPRINTER)
        return CRect(0, 0, ::GetDeviceCaps(hdc, HORZRES), ::GetDeviceCaps(hdc, VERTRES));
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

CRect CMathematics::GetScissorRect(CDC * dc)
{
    return GetScissorRect(HandleOf(dc));
}

int CMathematics::ScissorTest(HDC hdc, int x, int y)
{
    return ScissorTest(GetScissorRect(hdc), x, y);
}

int CMathematics::ScissorTest(CDC * dc, int x, int y)
{
    return ScissorTest(HandleOf(dc), x, y);
}

void CMathematics::Line2D(HDC hdc, int x1, int y1, int x2, int y2)
{
    m_iPenX = x2;
    m_iPenY = y2;
    CRect const rect = GetScissorRect(hdc);
    POINT const a = {x1, y1};
    POINT const b = {x2, y2};
    if (LineInRectangle(x1, y1, x2, y2, rect.left, rect.top, rect.right, rect.bottom))
        DrawSegment(hdc, a, b);
    else if (LineIntersectsRectangle(x1, y1, x2, y2, rect.left, rect.top, rect.right, rect.bottom))
        DrawCrossing(*this, hdc, rect, a, b);
}

void CMathematics::MoveTo2D(HDC, int const & x, int const & y, tagPOINT * previous)
{
    if (previous)
        *previous = {m_iPenX, m_iPenY};
    m_iPenX = x;
    m_iPenY = y;
}

void CMathematics::LineTo2D(HDC hdc, int const & x, int const & y)
{
    Line2D(hdc, m_iPenX, m_iPenY, x, y);
}

void CMathematics::Line3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                          double const & scale, TUVect3D const & a, TUVect3D const & b)
{
    int x1, y1, x2, y2;
    GetInt2DCoord(originX, originY, m, scale, a, x1, y1);
    GetInt2DCoord(originX, originY, m, scale, b, x2, y2);
    m_PenPoint3D = b;
    Line2D(hdc, x1, y1, x2, y2);
}

void CMathematics::MoveTo3D(HDC, int const &, int const &, double const (*)[3], double const &,
                            TUVect3D const & point)
{
    m_PenPoint3D = point;
}

void CMathematics::LineTo3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                            double const & scale, TUVect3D const & point)
{
    TUVect3D const start = m_PenPoint3D;
    Line3D(hdc, originX, originY, m, scale, start, point);
}

void CMathematics::Cross3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                           double const & scale, TUVect3D const & point, float size)
{
    for (int axis = 0; axis < 3; ++axis) {
        TUVect3D ends[2] = {point, point};
        ends[0].a[axis] -= size;
        ends[1].a[axis] += size;
        int x1, y1, x2, y2;
        GetInt2DCoord(originX, originY, m, scale, ends[0], x1, y1);
        GetInt2DCoord(originX, originY, m, scale, ends[1], x2, y2);
        DrawSegment(hdc, {x1, y1}, {x2, y2});
    }
}

void CMathematics::DrawFillPoly2D(HDC hdc, tagPOINT * const points, int count, unsigned long colour)
{
    HPEN const pen = ::CreatePen(PS_SOLID, 0, static_cast<COLORREF>(colour));
    HBRUSH const brush = ::CreateSolidBrush(static_cast<COLORREF>(colour));
    HGDIOBJ const oldPen = ::SelectObject(hdc, pen);
    HGDIOBJ const oldBrush = ::SelectObject(hdc, brush);
    ::Polygon(hdc, points, count);
    ::SelectObject(hdc, oldPen);
    ::SelectObject(hdc, oldBrush);
    ::DeleteObject(pen);
    // Deliberate: the brush from before goes to DeleteObject and not the one made here. It is a stock brush
    // as a rule, which can't be deleted.
    ::DeleteObject(oldBrush);
}

void CMathematics::DrawFillPoly3D(HDC hdc, int const & originX, int const & originY, double const (*m)[3],
                                  double const & scale, TUVect3D * points, int count, unsigned long colour)
{
    if (!points || count < 2)
        return;
    std::vector<POINT> pixels;
    for (int i = 0; i < count; ++i) {
        int x, y;
        GetInt2DCoord(originX, originY, m, scale, points[i], x, y);
        pixels.push_back({x, y});
    }
    DrawFillPoly2D(hdc, pixels.data(), count, colour);
}
