#ifndef KX7_DXF_LAYER_CHOICE_H
#define KX7_DXF_LAYER_CHOICE_H

#include "platform/base/collections.h"
#include "platform/base/export.h"

/// Shows the layers of a drawing and writes 1 (read it) or 0 over the flag of each. Both arrays have the
/// order of the drawing's layer table. The user's leaving without a choice leaves the flags as they are.
using LayerChoiceHandler = void (*)(CStringArray const & names, CByteArray & flags);

/// Sets what stands for the dialog in which a user chooses the layers to read; null for none, which leaves
/// all flags as they are. The result is the handler that was set before.
KX7_API LayerChoiceHandler SetLayerChoiceHandler(LayerChoiceHandler handler);

/// Asks the handler.
KX7_API void ChooseLayers(CStringArray const & names, CByteArray & flags);

#endif
