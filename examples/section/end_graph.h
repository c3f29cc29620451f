#ifndef KX7_EXAMPLES_SECTION_END_GRAPH_H
#define KX7_EXAMPLES_SECTION_END_GRAPH_H

#include <cstddef>
#include <vector>

#include "outlines.h"

namespace outlines {
/// Open paths and the points where their ends meet: the work table of BuildOutlines.
class EndGraph
{
  public:
    /// Ends within `tolerance` of each other become one point; the paths' ends are moved onto it.
    EndGraph(std::vector<Path> paths, double tolerance);

    /// Drops paths that run along another one from end to end, in either direction. Returns how many.
    int DropDuplicates();

    /// Takes away the paths that can't be part of a closed outline, because an end of them (or of all that
    /// hangs on them) meets nothing, and tells where.
    std::vector<Gap> TakeLooseEnds();

    /// Takes away closed outlines until no path is left that closes.
    std::vector<Path> TakeClosedPaths(CMathematics & kernel);

  private:
    // One end of a path: its start, or its end.
    struct End
    {
        std::size_t path;
        bool atStart;
    };
    enum class Turn
    {
        kLeft,
        kRight
    };

    void FindPoints(double tolerance);
    void MoveEndsOntoPoints();
    std::size_t PointOf(End const & end) const;
    TUVect2D & PositionOf(End const & end);
    std::size_t CountAt(std::size_t point) const;
    bool SameCourse(std::size_t a, std::size_t b) const;
    bool Follow(std::size_t first, Turn turn, std::vector<End> & trace);
    bool NextFrom(End const & arrival, Turn turn, End & next) const;
    Path Join(std::vector<End> const & trace) const;

    std::vector<Path> m_paths;
    double m_tolerance;
    std::vector<bool> m_used;              // by path: taken away
    std::vector<std::size_t> m_lastTrace;  // by path: number of the last trace that ran along it
    std::size_t m_traces = 0;
    std::vector<std::size_t> m_points;       // by end (2 * path, 2 * path + 1): the point it belongs to
    std::vector<std::vector<End>> m_endsAt;  // by point
};
}  // namespace outlines

#endif
