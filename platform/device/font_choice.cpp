#include "platform/device/font_choice.h"

#include <utility>

#if defined(_WIN32)
#include <commdlg.h>
#endif

namespace {
#if defined(_WIN32)

/// Screen fonts with colour and effects.
constexpr DWORD kDialogFlags = CF_SCREENFONTS | CF_EFFECTS;
static_assert(kDialogFlags == 257);

int AskBySystem(LOGFONT * font, COLORREF * colour)
{
    LOGFONT chosen = *font;
    CHOOSEFONT request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = ::GetActiveWindow();
    request.lpLogFont = &chosen;
    request.Flags = kDialogFlags | CF_INITTOLOGFONTSTRUCT;
    request.rgbColors = *colour;
    if (!::ChooseFont(&request))
        return 0;
    *font = chosen;
    *colour = request.rgbColors;
    return 1;
}

#else

int AskBySystem(LOGFONT *, COLORREF *)
{
    return 0;
}

#endif

FontChoiceHandler g_handler = nullptr;
}  // namespace

FontChoiceHandler SetFontChoiceHandler(FontChoiceHandler handler)
{
    return std::exchange(g_handler, handler);
}

int ChooseFontByUser(LOGFONT * font, COLORREF * colour)
{
    return g_handler ? g_handler(font, colour) : AskBySystem(font, colour);
}
