#include "texts.h"

#include <iterator>

namespace {
struct Translations
{
    char const * english;
    char const * german;
    char const * czech;
};

// In the order of ETexts.
constexpr Translations kTexts[] = {
    {"Area", "Fläche", "Plocha"},
    {"Area with flattened arcs", "Fläche mit Sehnenzug", "Plocha s nahrazenými oblouky"},
    {"Perimeter", "Umfang", "Obvod"},
    {"Static moment about the x axis", "Statisches Moment um die x-Achse", "Statický moment k ose x"},
    {"Static moment about the y axis", "Statisches Moment um die y-Achse", "Statický moment k ose y"},
    {"Centroid x", "Schwerpunkt x", "Těžiště x"},
    {"Centroid y", "Schwerpunkt y", "Těžiště y"},
    {"Moment of inertia about x (centroid)", "Trägheitsmoment um x (Schwerpunkt)",
     "Moment setrvačnosti k x (těžiště)"},
    {"Moment of inertia about y (centroid)", "Trägheitsmoment um y (Schwerpunkt)",
     "Moment setrvačnosti k y (těžiště)"},
    {"Product of inertia (centroid)", "Deviationsmoment (Schwerpunkt)", "Deviační moment (těžiště)"},
    {"First principal moment", "Erstes Hauptträgheitsmoment", "První hlavní moment setrvačnosti"},
    {"Second principal moment", "Zweites Hauptträgheitsmoment", "Druhý hlavní moment setrvačnosti"},
    {"Angle of the principal axes", "Hauptachsenwinkel", "Úhel hlavních os"},
    {"Radius of gyration about x", "Trägheitsradius um x", "Poloměr setrvačnosti k x"},
    {"Radius of gyration about y", "Trägheitsradius um y", "Poloměr setrvačnosti k y"},
    {"First principal radius of gyration", "Erster Hauptträgheitsradius",
     "První hlavní poloměr setrvačnosti"},
    {"Second principal radius of gyration", "Zweiter Hauptträgheitsradius",
     "Druhý hlavní poloměr setrvačnosti"},
    {"Elastic modulus, top fibre", "Widerstandsmoment, obere Faser", "Pružný průřezový modul, horní vlákna"},
    {"Elastic modulus, bottom fibre", "Widerstandsmoment, untere Faser",
     "Pružný průřezový modul, dolní vlákna"},
    {"Elastic modulus, right fibre", "Widerstandsmoment, rechte Faser",
     "Pružný průřezový modul, pravá vlákna"},
    {"Elastic modulus, left fibre", "Widerstandsmoment, linke Faser", "Pružný průřezový modul, levá vlákna"},
    {"Plastic modulus about x", "Plastisches Widerstandsmoment um x", "Plastický průřezový modul k x"},
    {"Plastic modulus about y", "Plastisches Widerstandsmoment um y", "Plastický průřezový modul k y"},
    {"Shear area along x / area", "Schubfläche in x / Fläche", "Smyková plocha ve směru x / plocha"},
    {"Shear area along y / area", "Schubfläche in y / Fläche", "Smyková plocha ve směru y / plocha"},
    {"Width at the centroid", "Breite im Schwerpunkt", "Šířka v těžišti"},
    {"Error of the area by flattening", "Flächenfehler durch Sehnenzug", "Chyba plochy z nahrazení oblouků"},
    {"Body", "Körper", "Těleso"},
    {"All together", "Gesamt", "Celkem"},
    {"outlines", "Umrisse", "obrysy"},
    {"Common part with", "Gemeinsamer Teil mit", "Společná část s"},
    {"Triangles of the mesh on the section", "Netzdreiecke auf dem Querschnitt",
     "Trojúhelníky sítě na průřezu"},
    {"Sum of the overlaps", "Summe der Überdeckungen", "Součet překrytí"},
};
static_assert(std::size(kTexts) == static_cast<std::size_t>(ETexts::kCount));
}  // namespace

std::string Text(ETexts text, ELanguages language)
{
    Translations const & translations = kTexts[static_cast<std::size_t>(text)];
    if (language == CZECH)
        return translations.czech;
    return language == GERMANY ? translations.german : translations.english;
}
