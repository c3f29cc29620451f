#include "load_section.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <iostream>

#include "section_drawing.h"

namespace {
using outlines::OutlineSet;

constexpr double kMetresPerMillimetre = 0.001;
constexpr double kToleranceShare = 1.0 / 20000;  // of the drawing's size
constexpr double kBoundShare = 1e-8;             // likewise

void Warn(std::string const & text)
{
    std::cerr << "section: " << text << "\n";
}

// Six digits are enough to find the place in a drawing.
std::string NumberText(double value)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%.6g", value);
    return text;
}

std::string PointText(TUVect2D const & point, double unit)
{
    return std::string("(") + NumberText(point.x / unit) + ", " + NumberText(point.y / unit) + ")";
}

// Tells the line number on standard error once reading takes longer than a second.
class Progress
{
  public:
    void operator()(int line)
    {
        if (std::chrono::steady_clock::now() - m_told < std::chrono::seconds(1))
            return;
        m_told = std::chrono::steady_clock::now();
        std::cerr << "section: reading line " << line << " ...\n";
    }

  private:
    std::chrono::steady_clock::time_point m_told = std::chrono::steady_clock::now();
};

void Read(std::string const & name, CSectionDrawing & drawing)
{
    if (drawing.Create(CString(name.c_str())) != 0)
        throw Failure(name + ": can't be opened");
    if (drawing.ReadDXF() != 0)
        throw Failure(name + ": not a complete text DXF drawing; reading stopped at line " +
                      std::to_string(drawing.LineNumber()));
}

double SizeOf(std::vector<DrawnPath> const & paths)
{
    outlines::Path all;
    for (DrawnPath const & drawn : paths)
        all.insert(all.end(), drawn.path.begin(), drawn.path.end());
    outlines::Box const box = outlines::BoxOf(all);
    return std::hypot(box.max.x - box.min.x, box.max.y - box.min.y);
}

std::vector<outlines::Path> InMetres(std::vector<DrawnPath> const & drawn, double unit)
{
    std::vector<outlines::Path> paths;
    for (DrawnPath const & path : drawn) {
        paths.push_back(path.path);
        for (TSPlaneEdge2D & side : paths.back())
            side = {{{side.start.x * unit, side.start.y * unit}},
                    {{side.end.x * unit, side.end.y * unit}},
                    side.bulge};
    }
    return paths;
}

void WarnOfLeftOut(std::string const & name, CSectionDrawing const & drawing)
{
    for (auto const & [entity, count] : drawing.EntityCounts())
        for (char const * curved : {"ELLIPSE", "SPLINE", "HATCH", "REGION", "MLINE"})
            if (entity == curved)
                Warn(name + ": " + std::to_string(count) + " " + entity +
                     " left out: not a kind that is read");
    if (drawing.TiltedEntities() > 0)
        Warn(name + ": " + std::to_string(drawing.TiltedEntities()) +
             " entities left out: not in the drawing plane");
    for (std::string const & block : drawing.MissingBlocks())
        Warn(name + ": block '" + block + "' is inserted but not in the drawing");
}

void WarnOfGaps(std::string const & name, OutlineSet const & set, double unit)
{
    constexpr std::size_t kMostTold = 20;
    for (std::size_t i = 0; i < set.gaps.size() && i < kMostTold; ++i) {
        outlines::Gap const & gap = set.gaps[i];
        std::string text = name + ": an outline doesn't close at " + PointText(gap.at, unit);
        if (gap.distance > 0)
            text += "; the next loose end is " + NumberText(gap.distance / unit) + " away at " +
                    PointText(gap.nearest, unit);
        Warn(text);
    }
    if (set.gaps.size() > kMostTold)
        Warn(name + ": ... and at " + std::to_string(set.gaps.size() - kMostTold) + " more places");
    if (set.duplicates > 0)
        Warn(name + ": " + std::to_string(set.duplicates) + " duplicates dropped");
}
}  // namespace

Section LoadSection(CMathematics & kernel, std::string const & name, Options const & options)
{
    double const ellipseBound = options.bound > 0 ? options.bound : 1e-3;
    CSectionDrawing drawing(options.layers, ellipseBound, Progress());
    Read(name, drawing);
    WarnOfLeftOut(name, drawing);
    if (drawing.Paths().empty())
        throw Failure(name + ": no lines, arcs or polylines" +
                      (options.layers.empty() ? "" : " on these layers"));
    double const unit =
        options.unit > 0 ? options.unit : drawing.UnitInMetres().value_or(kMetresPerMillimetre);
    double const size = SizeOf(drawing.Paths());
    double const tolerance = (options.tolerance > 0 ? options.tolerance : size * kToleranceShare) * unit;
    OutlineSet set = outlines::BuildOutlines(kernel, InMetres(drawing.Paths(), unit), tolerance);
    WarnOfGaps(name, set, unit);
    if (set.outlines.empty())
        throw Failure(name + ": no closed outline");
    if (auto const crossing = outlines::FindCrossing(kernel, set.outlines))
        throw Failure(name + ": outlines cross at " + PointText(*crossing, unit));
    return {std::move(set.outlines), unit, (options.bound > 0 ? options.bound : size * kBoundShare) * unit};
}

void ListDrawing(Options const & options)
{
    CSectionDrawing drawing(options.layers, 1e-3, Progress());
    Read(options.drawing, drawing);
    std::cout << options.drawing << "\nlayers\n";
    for (auto const & [layer, count] : drawing.LayerCounts())
        std::cout << "  " << layer << ": " << count << "\n";
    std::cout << "entities\n";
    for (auto const & [entity, count] : drawing.EntityCounts())
        if (entity != "ENDSEC" && entity != "ENDBLK" && entity != "SEQEND" && entity != "VERTEX")
            std::cout << "  " << entity << ": " << count << "\n";
    if (drawing.UnitInMetres())
        std::cout << "drawing unit: " << *drawing.UnitInMetres() << " m\n";
}
