// The program as a whole: arguments in; text, exit code and files out.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "test_paths.h"

namespace {
namespace fs = std::filesystem;

struct Outcome
{
    int code;
    std::string output;
    std::string errors;
};

std::string Contents(fs::path const & path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class SectionProgram : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_folder = fs::path(kBuildDir) / "section_program_test" /
                   testing::UnitTest::GetInstance()->current_test_info()->name();
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }

    void TearDown() override { fs::remove_all(m_folder); }

    static std::string Quoted(fs::path path)
    {
        return std::string("\"") + path.make_preferred().string() + "\"";
    }

    static fs::path Sample(char const * name) { return fs::path(kSourceDir) / "examples/data" / name; }

    Outcome Run(std::string const & arguments)
    {
#if defined(_WIN32)
        fs::path const program = fs::path(kBuildDir) / "bin/section.exe";
#else
        fs::path const program = fs::path(kBuildDir) / "bin/section";
#endif
        fs::path const output = m_folder / "output.txt", errors = m_folder / "errors.txt";
        std::string command =
            Quoted(program) + " " + arguments + " > " + Quoted(output) + " 2> " + Quoted(errors);
#if defined(_WIN32)
        command = std::string("\"") + command + "\"";  // the command interpreter takes the outer quotes off
#endif
        int const status = std::system(command.c_str());
        Outcome const outcome{status, Contents(output), Contents(errors)};
        fs::remove(output);
        fs::remove(errors);
        return outcome;
    }

    Outcome RunOn(std::string const & text, std::string const & arguments)
    {
        fs::path const drawing = m_folder / "drawing.dxf";
        std::ofstream(drawing, std::ios::binary) << text;
        Outcome const outcome = Run(Quoted(drawing) + " " + arguments);
        fs::remove(drawing);
        return outcome;
    }

    // What a run that fails must look like: one line that holds the words, no numbers, no file left.
    void ExpectFailure(Outcome const & outcome, std::string const & words)
    {
        EXPECT_NE(outcome.code, 0);
        EXPECT_EQ(outcome.output, "");
        EXPECT_NE(outcome.errors.find(words), std::string::npos) << outcome.errors;
        EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
        EXPECT_TRUE(fs::is_empty(m_folder));
    }

    fs::path m_folder;
};

std::string LineEntity(double x1, double y1, double x2, double y2)
{
    return "0\nLINE\n8\n0\n10\n" + std::to_string(x1) + "\n20\n" + std::to_string(y1) + "\n11\n" +
           std::to_string(x2) + "\n21\n" + std::to_string(y2) + "\n31\n0\n";
}

std::string Drawing(std::string const & entities)
{
    return "0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n";
}

std::string const kSquare =
    LineEntity(0, 0, 10, 0) + LineEntity(10, 0, 10, 10) + LineEntity(10, 10, 0, 10) + LineEntity(0, 10, 0, 0);

TEST_F(SectionProgram, PrintsTheTableInTheChosenUnits)
{
    Outcome const outcome = Run(Quoted(Sample("ipe200.dxf")) + " --units mm --no-files");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.errors, "");
    EXPECT_NE(outcome.output.find("ipe200.dxf\n\nBody 1 (outlines: 1)\n"), std::string::npos)
        << outcome.output;
    EXPECT_NE(
        outcome.output.find("  Area                                        A               2848.411 mm2\n"),
        std::string::npos)
        << outcome.output;
    EXPECT_NE(outcome.output.find(" alpha              0.000 deg\n"), std::string::npos) << outcome.output;
}

TEST_F(SectionProgram, SpeaksItsLanguages)
{
    std::string const drawing = Quoted(Sample("ipe200.dxf")) + " --no-files --lang ";
    EXPECT_NE(Run(drawing + "cs").output.find("Moment setrvačnosti k x (těžiště)"), std::string::npos);
    EXPECT_NE(Run(drawing + "de").output.find("Trägheitsmoment um x (Schwerpunkt)"), std::string::npos);
    EXPECT_NE(Run(drawing + "en").output.find("Moment of inertia about x (centroid)"), std::string::npos);
}

TEST_F(SectionProgram, PrintsJson)
{
    Outcome const outcome = Run(Quoted(Sample("t_beam.dxf")) + " --units m --json --no-files");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.output.find("{\n  \"drawing\": \"t_beam.dxf\",\n  \"length_unit\": \"m\""), 0U);
    // 0.3 * 0.5 + 1.2 * 0.15 + 0.05 * (1.2 + 0.3) / 2 = 0.3675, but for rounding.
    EXPECT_NE(outcome.output.find("\"area\": 0.3674999999999"), std::string::npos) << outcome.output;
}

TEST_F(SectionProgram, WritesPicturesAndDrawing)
{
    Outcome const outcome =
        Run(Quoted(Sample("box_girder.dxf")) + " --output " + Quoted(m_folder / "girder"));
    EXPECT_EQ(outcome.code, 0) << outcome.errors;
#if defined(_WIN32)
    EXPECT_EQ(Contents(m_folder / "girder.bmp").substr(0, 2), "BM");
#else
    EXPECT_EQ(Contents(m_folder / "girder.png").substr(1, 3), "PNG");
    EXPECT_NE(Contents(m_folder / "girder.svg").find("</svg>"), std::string::npos);
    EXPECT_EQ(Contents(m_folder / "girder.pdf").substr(0, 4), "%PDF");
#endif
    // The drawing written is a section with the same area, but for its three decimals.
    Outcome const again =
        Run(Quoted(m_folder / "girder-section.dxf") + " --unit cm --no-files --layers OUTLINE,HOLE");
    EXPECT_NE(again.output.find("Body 1 (outlines: 4)"), std::string::npos) << again.errors;
    EXPECT_NE(again.output.find("89785."), std::string::npos) << again.output;
}

TEST_F(SectionProgram, ListsWhatTheDrawingHolds)
{
    Outcome const outcome = Run(Quoted(Sample("box_girder.dxf")) + " --list");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.output.find("layers\n  CONCRETE: 1\n  VOIDS: 3\n"), std::string::npos)
        << outcome.output;
    EXPECT_NE(outcome.output.find("  CIRCLE: 3\n  LWPOLYLINE: 1\n"), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("drawing unit: 0.01 m\n"), std::string::npos) << outcome.output;
}

TEST_F(SectionProgram, TakesChosenLayersOnly)
{
    Outcome const outcome = Run(Quoted(Sample("box_girder.dxf")) + " --no-files --layers CONCRETE");
    EXPECT_NE(outcome.output.find("Body 1 (outlines: 1)"), std::string::npos);
    ExpectFailure(Run(Quoted(Sample("box_girder.dxf")) + " --no-files --layers NONE"), "on these layers");
}

TEST_F(SectionProgram, BlockContentOnLayerZeroTakesTheInsertionsLayer)
{
    Outcome const outcome = Run(Quoted(Sample("ipe200_halves.dxf")) + " --no-files --layers STEEL");
    EXPECT_NE(outcome.output.find("28.484 cm2"), std::string::npos) << outcome.errors;
}

TEST_F(SectionProgram, ComputesTheCommonPartAndTheMesh)
{
    Outcome const outcome = Run(Quoted(Sample("ipe200.dxf")) + " --no-files --with " +
                                Quoted(Sample("ipe200_halves.dxf")) + " --mesh 7");
    EXPECT_EQ(outcome.code, 0) << outcome.errors;
    EXPECT_NE(outcome.output.find("Common part with ipe200_halves.dxf          A&B               28.484 cm2"),
              std::string::npos)
        << outcome.output;
    EXPECT_NE(outcome.output.find("Sum of the overlaps                         sum A             28.484 cm2"),
              std::string::npos)
        << outcome.output;
}

TEST_F(SectionProgram, MeshSeesArcsThatBulgeOutwards)
{
    Outcome const outcome = Run(Quoted(Sample("pipes.dxf")) + " --no-files --units mm --mesh 9");
    // Six rings of 30^2 - 25^2 times pi.
    EXPECT_NE(outcome.output.find("Sum of the overlaps                         sum A           5183.628 mm2"),
              std::string::npos)
        << outcome.output;
}

TEST_F(SectionProgram, TellsWhatDoesNotClose)
{
    std::string entities = kSquare + LineEntity(20, 0, 30, 0) + LineEntity(30, 0, 30, 10);
    Outcome const outcome = RunOn(Drawing(entities), "--no-files");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.errors.find(
                  "an outline doesn't close at (20, 0); the next loose end is 14.1421 away at (30, 10)"),
              std::string::npos)
        << outcome.errors;
    EXPECT_NE(outcome.output.find("1.000 cm2"), std::string::npos);
}

TEST_F(SectionProgram, TellsOfDuplicates)
{
    Outcome const outcome = RunOn(Drawing(kSquare + LineEntity(10, 0, 0, 0)), "--no-files");
    EXPECT_NE(outcome.errors.find("1 duplicates dropped"), std::string::npos) << outcome.errors;
    EXPECT_NE(outcome.output.find("1.000 cm2"), std::string::npos);
}

TEST_F(SectionProgram, UnitComesFromTheOptionThenTheHeader)
{
    std::string const header = "0\nSECTION\n2\nHEADER\n9\n$INSUNITS\n70\n6\n0\nENDSEC\n";
    EXPECT_NE(RunOn(header + Drawing(kSquare), "--no-files --units m").output.find("100.000 m2"),
              std::string::npos);
    EXPECT_NE(RunOn(header + Drawing(kSquare), "--no-files --units m --unit cm").output.find("0.010 m2"),
              std::string::npos);
    EXPECT_NE(RunOn(Drawing(kSquare), "--no-files --units mm").output.find("100.000 mm2"), std::string::npos);
}

TEST_F(SectionProgram, MissingFileIsOneLine)
{
    ExpectFailure(Run(Quoted(m_folder / "none.dxf")), "none.dxf: can't be opened");
}

TEST_F(SectionProgram, FileThatIsNoDrawingIsOneLine)
{
    ExpectFailure(RunOn("hello\nworld\n", ""), "reading stopped at line");
    ExpectFailure(RunOn("", ""), "reading stopped at line 0");
    ExpectFailure(RunOn("AutoCAD Binary DXF\r\n\x1a\0\0\0SECTION", ""), "not a complete text DXF drawing");
}

TEST_F(SectionProgram, CutDrawingIsOneLine)
{
    std::string const whole = Drawing(kSquare);
    ExpectFailure(RunOn(whole.substr(0, whole.size() / 2), ""), "not a complete text DXF drawing");
}

TEST_F(SectionProgram, EmptyDrawingIsOneLine)
{
    ExpectFailure(RunOn(Drawing(""), ""), "no lines, arcs or polylines");
}

TEST_F(SectionProgram, CrossingOutlinesAreOneLineWithThePlace)
{
    std::string const bowTie = LineEntity(0, 0, 20, 20) + LineEntity(20, 20, 20, 0) +
                               LineEntity(20, 0, 0, 30) + LineEntity(0, 30, 0, 0);
    ExpectFailure(RunOn(Drawing(bowTie), ""), "outlines cross at (12, 12)");
}

TEST_F(SectionProgram, UnwritableOutputIsOneLine)
{
    ExpectFailure(Run(Quoted(Sample("ipe200.dxf")) + " --output " + Quoted(m_folder / "none" / "x")),
                  "can't be written");
}

TEST_F(SectionProgram, BadArgumentsAreOneLine)
{
    std::string const drawing = Quoted(Sample("ipe200.dxf"));
    ExpectFailure(Run(""), "which drawing?");
    ExpectFailure(Run(drawing + " --unit"), "--unit needs a value");
    ExpectFailure(Run(drawing + " --unit ell"), "--unit is one of cm, inch, m, mm, not 'ell'");
    ExpectFailure(Run(drawing + " --mesh 0"), "--mesh needs a number above 0");
    ExpectFailure(Run(drawing + " --bound x"), "--bound needs a number above 0");
    ExpectFailure(Run(drawing + " --frobnicate"), "'--frobnicate' isn't understood");
    ExpectFailure(Run(drawing + " other.dxf"), "'other.dxf' isn't understood");
    ExpectFailure(Run(drawing + " --mesh 1e-7 --no-files"), "more than four million triangles");
}

TEST_F(SectionProgram, HelpShowsExamples)
{
    Outcome const outcome = Run("--help");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.output.find("Examples\n  section ipe200.dxf\n"), std::string::npos);
}

TEST_F(SectionProgram, EndsOnEveryRealDrawing)
{
    fs::path const folder = fs::path(kSharedDir) / "data/dxf";
    if (!fs::exists(folder))
        GTEST_SKIP() << "the folder of real drawings, " << folder << ", isn't here";
    for (fs::directory_entry const & entry : fs::directory_iterator(folder)) {
        Outcome const outcome = Run(Quoted(entry.path()) + " --no-files");
        bool const failed = outcome.errors.find("section: ") != std::string::npos && outcome.output.empty();
        EXPECT_EQ(outcome.code != 0, failed) << entry.path() << "\n" << outcome.errors;
#if !defined(_WIN32)
        EXPECT_TRUE(WIFEXITED(outcome.code)) << entry.path();
#endif
    }
}
}  // namespace
