#ifndef KX7_GEOMETRY_DETAIL_ELEMENT_CUT_H
#define KX7_GEOMETRY_DETAIL_ELEMENT_CUT_H

// Cutting one element at the boundary of an area, in three steps: the contacts with the sides are collected
// one by one (Meet), put in order (Tidied), and the gaps between them are classified (Finish).
//
// Words: a contact is an interval of the element on the boundary, a stretch along a side or a point. A
// sentinel is an interval without length at the element's start or end; it never leaves the cut.

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "geometry/detail_areas.h"
#include "geometry/records.h"

namespace detail {
// Kinds of an interval.
inline constexpr int kSentinel = -1;
inline constexpr int kIntervalInside = 0;
inline constexpr int kIntervalOnSide = 1;
inline constexpr int kIntervalTouch = 2;
inline constexpr int kIntervalWhole = 3;

// Flags of a cut element.
inline constexpr int kCutInside = 1;
inline constexpr int kCutOnBoundary = 2;
inline constexpr int kCutOutside = 4;
inline constexpr int kCutWithinSide = 18;
inline constexpr int kCutSameAsSide = 26;

// Kinds of the meeting of two elements.
inline constexpr int kMeetSame = 0;
inline constexpr int kMeetStretch = 1;

/// The contacts of one element with a boundary, in order along the element, without touching points that a
/// neighbour covers already.
inline void Tidy(std::vector<TSInterval> & contacts, double tolerance)
{
    std::erase_if(contacts, [tolerance](TSInterval const & c) {
        return c.kind == kIntervalOnSide && std::fabs(c.t1 - c.t2) < tolerance;
    });
    for (TSInterval & c : contacts)
        if (c.kind == kIntervalOnSide && c.t1 > c.t2)
            std::swap(c.t1, c.t2);

    auto const key = [](TSInterval const & c) {
        double const sum = c.t1 + c.t2;
        return std::isnan(sum) ? std::numeric_limits<double>::infinity() : sum;
    };
    if (contacts.size() > 1)
        std::stable_sort(contacts.begin(), contacts.end(),
                         [&key](TSInterval const & a, TSInterval const & b) { return key(a) < key(b); });

    std::size_t kept = 0;
    for (std::size_t i = 0; i < contacts.size(); ++i) {
        TSInterval const c = contacts[i];
        bool const alone = kept == 0 && i + 1 == contacts.size();
        bool const covered = c.kind == kIntervalTouch && !alone &&
                             ((kept > 0 && std::fabs(c.t1 - contacts[kept - 1].t2) < tolerance) ||
                              (i + 1 < contacts.size() && std::fabs(contacts[i + 1].t1 - c.t2) < tolerance));
        if (!covered)
            contacts[kept++] = c;
    }
    contacts.resize(kept);
}

/// One element being cut. `Kernel` gives the geometry:
///   bool Same(p, q)                         one place
///   int Meet(e, side, parts[2], count, kind)    as CMathematics::ElemIntersection
///   double PositionOf(e, p)                 as CMathematics::IsPointInEelem
///   TUVect2D PointAt(e, position)           as CMathematics::GetPointOnEelem
///   int ClassOf(p)                          as CMathematics::IsPointInArea of the area
template <class Kernel>
class ElementCut
{
  public:
    /// `contacts` is working memory, `intervals` receives the result.
    ElementCut(Kernel & kernel, TSelem const & e, double tolerance, std::vector<TSInterval> & contacts,
               IntervalArray & intervals)
        : m_kernel(kernel),
          m_e(e),
          m_tolerance(tolerance),
          m_length(kernel.PositionOf(e, e.end)),
          m_contacts(contacts),
          m_intervals(intervals)
    {
        m_contacts.clear();
        m_intervals.SetSize(0);
    }

    /// Puts the side with the ordinal `k` to the element. Flags if that settles the whole element, else 0.
    int Meet(TSelem const & side, int k)
    {
        TSelem parts[2];
        int count = 0;
        int kind = 0;
        if (!m_kernel.Meet(m_e, side, parts, count, kind))
            return 0;
        if (kind == kMeetSame)
            return Whole(k, kCutSameAsSide);
        if (kind == kMeetStretch)
            return AddStretches(parts, count, k);
        for (int i = 0; i < count; ++i)
            AddPoint(parts[i].start, side, k);
        return 0;
    }

    /// Classifies what lies between the contacts. The flags of the element.
    int Finish()
    {
        if (m_contacts.empty()) {
            if (m_kernel.ClassOf(m_e.start) == kPointOutside)
                return 0;
            Append({0.0, m_length, kNoSide, kIntervalInside});
            return kCutInside;
        }
        Tidy(m_contacts, m_tolerance);
        if (m_contacts.front().t1 > 0.0)
            m_contacts.insert(m_contacts.begin(), TSInterval{0.0, 0.0, kNoSide, kSentinel});
        m_contacts.push_back({m_length, m_length, kNoSide, kSentinel});
        for (std::size_t i = 0; i + 1 < m_contacts.size(); ++i)
            ScanGap(i);
        return m_flags;
    }

  private:
    void Append(TSInterval interval) { m_intervals.Add(interval); }

    int Whole(int k, int flags)
    {
        Append({0.0, m_length, k, kIntervalWhole});
        return flags;
    }

    int AddStretches(TSelem const * parts, int count, int k)
    {
        double from = 0.0;
        double to = 0.0;
        for (int i = 0; i < count; ++i) {
            from = m_kernel.PositionOf(m_e, parts[i].start);
            to = m_kernel.PositionOf(m_e, parts[i].end);
            bool const isStretch = std::fabs(from - to) >= m_tolerance;
            m_contacts.push_back({from, to, k, isStretch ? kIntervalOnSide : kIntervalTouch});
        }
        if (count == 1 && from == 0.0 && to == m_length)
            return Whole(k, kCutWithinSide);
        m_lastAtEnd = false;
        return 0;
    }

    /// A touching point at the start of a side has already been delivered by a side that ends there.
    void AddPoint(TUVect2D const & p, TSelem const & side, int k)
    {
        if (m_lastAtEnd && m_kernel.Same(p, side.start)) {
            m_lastAtEnd = false;
            return;
        }
        double const position = m_kernel.PositionOf(m_e, p);
        if (m_kernel.Same(p, side.end))
            m_lastAtEnd = true;
        m_contacts.push_back({position, position, k, kIntervalTouch});
    }

    /// Contact `i` and the gap behind it.
    void ScanGap(std::size_t i)
    {
        TSInterval const a = m_contacts[i];
        TSInterval const b = m_contacts[i + 1];
        double const middle = a.kind == kSentinel ? a.t1 : (a.t2 + b.t1) / 2.0;
        if (a.kind == kIntervalOnSide)
            Append(a);
        switch (m_kernel.ClassOf(m_kernel.PointAt(m_e, middle))) {
            case kPointOutside:
                if (a.kind == kIntervalTouch)
                    AppendTouchUnlessInside(a);
                m_isInside = false;
                m_flags |= kCutOutside;
                break;
            case kPointInside:
                AppendStretch({a.t2, b.t1, kNoSide, kIntervalInside});
                break;
            default:
                m_flags |= kCutOnBoundary;
                if (a.kind != kIntervalTouch)
                    break;
                if (i + 2 < m_contacts.size())
                    AppendStretch({a.t1, b.t1, a.side, kIntervalTouch});
                else
                    AppendTouchUnlessInside(a);
        }
    }

    void AppendStretch(TSInterval const & stretch)
    {
        Append(stretch);
        m_lastSide = stretch.side;
        m_isInside = true;
        m_flags |= kCutInside;
    }

    /// The point carries the side of the stretch assembled last and not its own; callers rely on it.
    void AppendTouchUnlessInside(TSInterval const & a)
    {
        if (!m_isInside)
            Append({a.t1, a.t1, m_lastSide, kIntervalTouch});
    }

    Kernel & m_kernel;
    TSelem const & m_e;
    double m_tolerance;
    double m_length;
    std::vector<TSInterval> & m_contacts;
    IntervalArray & m_intervals;
    bool m_lastAtEnd = false;
    bool m_isInside = false;
    int m_lastSide = kNoSide;
    int m_flags = 0;
};
}  // namespace detail

#endif
