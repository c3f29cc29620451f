#include "options.h"

#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>

namespace {
constexpr char kHelp[] =
    R"(section - characteristics of a cross-section drawn in DXF

  section DRAWING.dxf [options]

The closed outlines of the drawing are found (loose lines and arcs are chained), sorted into bodies and holes and
computed. The numbers go to standard output, pictures and a clean drawing into files beside it.

What is read
  --list                 only tell which layers and entities the drawing holds
  --layers A,B           take these layers only
  --unit mm|cm|m|inch    length of a drawing unit (default: what the drawing's header says, else mm)
  --tolerance T          ends closer than T drawing units meet (default: the drawing's size / 20000)
  --bound B              chords leave their arc by at most B drawing units (default: the size / 1e8)

What is computed
  --with OTHER.dxf       also the common part with the outlines of another drawing
  --mesh SIZE            also the overlap with a mesh of triangles of that side, in drawing units

What comes out
  --units mm|cm|m|inch   unit of the table (default cm)
  --lang cs|en|de        language of the table (default en)
  --json                 numbers as JSON in place of the table
  --output FOLDER/STEM   names of the files (default: the drawing's name in the current folder)
  --no-files             numbers only

Examples
  section ipe200.dxf
  section ipe200.dxf --units mm --lang de --output out/ipe
  section plan.dxf --list
  section plan.dxf --layers WALLS,COLUMNS --unit cm --json --no-files
  section slab.dxf --with opening.dxf --mesh 250
)";

double Number(std::string const & option, std::string const & text)
{
    char * end = nullptr;
    double const value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0' || !std::isfinite(value) || value <= 0)
        throw Failure(option + " needs a number above 0, not '" + text + "'");
    return value;
}

template <class T>
T Choice(std::string const & option, std::string const & text, std::map<std::string, T> const & choices)
{
    auto const found = choices.find(text);
    if (found != choices.end())
        return found->second;
    std::string known;
    for (auto const & choice : choices)
        known += (known.empty() ? "" : ", ") + choice.first;
    throw Failure(option + " is one of " + known + ", not '" + text + "'");
}

std::set<std::string> Names(std::string const & list)
{
    std::set<std::string> names;
    std::istringstream stream(list);
    for (std::string name; std::getline(stream, name, ',');)
        if (!name.empty())
            names.insert(name);
    return names;
}

std::map<std::string, double> const kDrawingUnits = {
    {"mm", 0.001}, {"cm", 0.01}, {"m", 1.0}, {"inch", 0.0254}};
std::map<std::string, TEBaseUnit> const kShownUnits = {
    {"mm", BU_mm}, {"cm", BU_cm}, {"m", BU_m}, {"inch", BU_inch}};
std::map<std::string, ELanguages> const kLanguages = {{"cs", CZECH}, {"en", ENGLISH}, {"de", GERMANY}};

using Setter = std::function<void(std::string const & option, std::string const & value)>;

// Options with a value.
std::map<std::string, Setter> ValueOptions(Options & o)
{
    return {
        {"--layers", [&](auto const &, auto const & v) { o.layers = Names(v); }},
        {"--unit", [&](auto const & n, auto const & v) { o.unit = Choice(n, v, kDrawingUnits); }},
        {"--tolerance", [&](auto const & n, auto const & v) { o.tolerance = Number(n, v); }},
        {"--bound", [&](auto const & n, auto const & v) { o.bound = Number(n, v); }},
        {"--with", [&](auto const &, auto const & v) { o.with = v; }},
        {"--mesh", [&](auto const & n, auto const & v) { o.mesh = Number(n, v); }},
        {"--units", [&](auto const & n, auto const & v) { o.shownUnit = Choice(n, v, kShownUnits); }},
        {"--lang", [&](auto const & n, auto const & v) { o.language = Choice(n, v, kLanguages); }},
        {"--output", [&](auto const &, auto const & v) { o.output = v; }},
    };
}

bool SetSwitch(std::string const & option, Options & options)
{
    if (option == "--list")
        options.list = true;
    else if (option == "--json")
        options.json = true;
    else if (option == "--no-files")
        options.files = false;
    else if (option == "--help" || option == "-h")
        options.help = true;
    else
        return false;
    return true;
}
}  // namespace

char const * HelpText()
{
    return kHelp;
}

Options ParseOptions(int argc, char ** argv)
{
    Options options;
    auto const setters = ValueOptions(options);
    for (int i = 1; i < argc; ++i) {
        std::string const word = argv[i];
        if (SetSwitch(word, options))
            continue;
        if (auto const setter = setters.find(word); setter != setters.end()) {
            if (++i == argc)
                throw Failure(word + " needs a value; see section --help");
            setter->second(word, argv[i]);
        } else if (word.starts_with("-") || !options.drawing.empty())
            throw Failure("'" + word + "' isn't understood; see section --help");
        else
            options.drawing = word;
    }
    if (options.drawing.empty() && !options.help)
        throw Failure("which drawing? See section --help");
    return options;
}
