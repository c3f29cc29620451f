#ifndef KX7_EXAMPLES_SHEET_SHEET_H
#define KX7_EXAMPLES_SHEET_SHEET_H

#include "KX7Utlt.h"

/// Size of the sheet in pixels.
constexpr int kSheetWidth = 1180, kSheetHeight = 820;

/// Draws a dimensioned section, every line style and hatch, and turned texts: what the drawing layer can do,
/// on one sheet that must look the same on every kind of context.
void DrawSheet(CDC & dc);

#endif
