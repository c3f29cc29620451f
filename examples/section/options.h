#ifndef KX7_EXAMPLES_SECTION_OPTIONS_H
#define KX7_EXAMPLES_SECTION_OPTIONS_H

#include <set>
#include <stdexcept>
#include <string>

#include "KX7Utlt.h"

/// What the program can't do, in one line for the user.
struct Failure : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// The command line. Lengths are in drawing units unless they say otherwise.
struct Options
{
    std::string drawing;
    std::set<std::string> layers;  ///< None for all.
    bool list = false;             ///< Only tell what the drawing holds.
    double unit = 0.0;             ///< Metres of a drawing unit; 0: by the drawing's header, else mm.
    double tolerance = 0.0;        ///< Ends closer than this meet; 0: a 20,000th of the drawing's size.
    double bound = 0.0;            ///< How far a chord may leave its arc; 0: a 1e-8th of the size.
    std::string with;              ///< Another drawing to intersect with.
    double mesh = 0.0;             ///< Side of the mesh's triangles; 0 for no mesh.
    TEBaseUnit shownUnit = BU_cm;  ///< Unit of the table's lengths.
    ELanguages language = ENGLISH;
    bool json = false;
    std::string output;  ///< Folder and stem of the files; empty: the drawing's stem here.
    bool files = true;   ///< Write pictures and drawing.
    bool help = false;
};

/// Reads the command line; throws Failure for one that can't be understood.
Options ParseOptions(int argc, char ** argv);

/// The text of --help.
char const * HelpText();

#endif
