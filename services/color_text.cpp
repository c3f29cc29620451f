#include "services/color_text.h"

IMPLEMENT_DYNCREATE(CColorEditText, CEdit)
IMPLEMENT_DYNCREATE(CColorStaticText, CStatic)
