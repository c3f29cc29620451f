#include "dxf/layer_choice.h"

#include <utility>

namespace {
LayerChoiceHandler g_layerChoiceHandler = nullptr;
}

LayerChoiceHandler SetLayerChoiceHandler(LayerChoiceHandler handler)
{
    return std::exchange(g_layerChoiceHandler, handler);
}

void ChooseLayers(CStringArray const & names, CByteArray & flags)
{
    if (g_layerChoiceHandler)
        g_layerChoiceHandler(names, flags);
}
