#include "geometry/vo_outline_box_2d.h"

#include "geometry/snapped_vectors.h"

using namespace detail;

void CVOutlineBox2D::Add(TSelem element, double margin)
{
    // The signed bulge: an arc on the right of its chord makes the box smaller; hosts know it so.
    double const sagitta =
        element.type == EDGE_ARC ? Length(element.start - element.end) / 2.0 * element.bulge : 0.0;
    Add(element.start, margin + sagitta);
    Add(element.end, margin + sagitta);
}
