// From a drawing to the numbers and the picture of a cross-section. Read this file from the bottom up: Run
// tells the whole job, the functions above it one step each.
#include <cstdio>
#include <filesystem>
#include <iostream>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

#include "drawing_file.h"
#include "load_section.h"
#include "options.h"
#include "outlines.h"
#include "overlay.h"
#include "picture.h"
#include "report.h"
#include "section_values.h"

namespace {
using outlines::Outline;

constexpr double kMostTriangles = 4e6;  // of a mesh

// The library tells a failed reading by the suite's message box; here the error line does, so the box stays
// shut.
int SilentMessage(TSVardMessage const &)
{
    return IDOK;
}

// The bodies: each an outline that is no hole, with the holes right inside it.
std::vector<std::vector<Outline>> BodiesOf(std::vector<Outline> const & all)
{
    std::vector<std::vector<Outline>> bodies;
    std::vector<std::size_t> bodyOf(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        // A parent stands before its children.
        bodyOf[i] = all[i].IsHole() ? bodyOf[static_cast<std::size_t>(all[i].parent)] : bodies.size();
        if (!all[i].IsHole())
            bodies.emplace_back();
        bodies[bodyOf[i]].push_back(all[i]);
    }
    return bodies;
}

std::vector<ReportPart> ComputeParts(CMathematics & kernel, Section const & section)
{
    std::vector<ReportPart> parts;
    for (std::vector<Outline> const & body : BodiesOf(section.outlines))
        parts.push_back({static_cast<int>(parts.size()) + 1, static_cast<int>(body.size()),
                         ComputeSection(kernel, body, section.bound)});
    if (parts.size() > 1)
        parts.push_back({0, static_cast<int>(section.outlines.size()),
                         ComputeSection(kernel, section.outlines, section.bound)});
    return parts;
}

ReportExtras ComputeExtras(CMathematics & kernel, Section const & section, Options const & options)
{
    ReportExtras extras;
    if (!options.with.empty()) {
        extras.hasCommon = true;
        extras.otherName = std::filesystem::path(options.with).filename().string();
        extras.commonArea =
            CommonArea(kernel, section.outlines, LoadSection(kernel, options.with, options).outlines);
    }
    if (options.mesh > 0) {
        double const size = options.mesh * section.unit;
        if (!(TriangleCount(section.outlines, size) <= kMostTriangles))
            throw Failure("--mesh: more than four million triangles; take a larger side");
        MeshOverlap const overlap = MeshArea(kernel, section.outlines, size);
        extras.hasMesh = true;
        extras.triangles = overlap.triangles;
        extras.meshArea = overlap.area;
    }
    return extras;
}

void Run(Options const & options)
{
    if (options.list)
        return ListDrawing(options);
    // The kernel outlives everything that works with it; the units are those of the language.
    CMathematics kernel;
    CVARDBaseUnits baseUnits;
    baseUnits.Create(options.language);
    CVARDUnits units;
    units.Create(&baseUnits, options.language);
    units.m_units[UN_SectionLength] = baseUnits.GetBaseUnit(UN_SectionLength, options.shownUnit);

    Section const section = LoadSection(kernel, options.drawing, options);
    Report report;
    report.drawing = std::filesystem::path(options.drawing).filename().string();
    report.bound = section.bound;
    report.parts = ComputeParts(kernel, section);
    report.extras = ComputeExtras(kernel, section, options);

    if (options.files) {
        std::string const stem =
            options.output.empty() ? std::filesystem::path(options.drawing).stem().string() : options.output;
        SectionValues const & whole = report.parts.back().values;
        WritePictures(stem, PictureOf(section.outlines, whole, report.drawing, units));
        WriteDrawing(kernel, stem + "-section.dxf", section.outlines, section.unit);
    }
    std::cout << (options.json ? JsonText(report, units) : TableText(report, units, options.language));
}
}  // namespace

int main(int argc, char ** argv)
{
#if defined(_WIN32)
    _setmode(_fileno(stdout), _O_BINARY);  // the same bytes on every build
#endif
    SetVardMessageHandler(SilentMessage);
    try {
        Options const options = ParseOptions(argc, argv);
        if (options.help)
            std::cout << HelpText();
        else
            Run(options);
        std::cout.flush();
        return std::cout ? 0 : 1;
    } catch (std::exception const & failure) {
        std::cerr << "section: " << failure.what() << "\n";
        return 1;
    }
}
