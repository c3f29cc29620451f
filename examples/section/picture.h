#ifndef KX7_EXAMPLES_SECTION_PICTURE_H
#define KX7_EXAMPLES_SECTION_PICTURE_H

#include <string>
#include <vector>

#include "KX7Utlt.h"
#include "section_values.h"

/// What the picture of a section shows.
struct SectionPicture
{
    std::vector<outlines::Outline> outlines;
    SectionValues values;
    double shownUnit;  ///< Metres of the unit in which dimensions are told.
    CString unitLabel;
    CString title;
    std::vector<CString> captionLines;  ///< In code page 1250.
};

/// Puts the picture together: the outlines with the values of the whole section, told in the chosen units.
SectionPicture PictureOf(std::vector<outlines::Outline> const & outlines, SectionValues const & values,
                         std::string const & title, CVARDUnits const & units);

/// Draws the picture into the whole of a context of that size in pixels.
void DrawSection(CDC & dc, CSize size, SectionPicture const & picture);

/// Writes STEM.png, STEM.svg and STEM.pdf, or STEM.bmp on the Windows build, and returns their names. Throws
/// Failure, with no file of that call left, if one can't be written.
std::vector<std::string> WritePictures(std::string const & stem, SectionPicture const & picture);

#endif
