#ifndef KX7_PLATFORM_BASE_GDI_TYPES_H
#define KX7_PLATFORM_BASE_GDI_TYPES_H

// The records, handles and codes of the graphics interface. The Windows build takes them from the system's
// headers; elsewhere the same names are declared here with the same fields and values.
#include "platform/base/types.h"

#if !defined(_WIN32)

/// A colour: red in the lowest byte, then green, then blue.
using COLORREF = DWORD;

constexpr COLORREF RGB(int red, int green, int blue)
{
    return static_cast<COLORREF>((red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16);
}
constexpr BYTE GetRValue(COLORREF colour)
{
    return static_cast<BYTE>(colour);
}
constexpr BYTE GetGValue(COLORREF colour)
{
    return static_cast<BYTE>(colour >> 8);
}
constexpr BYTE GetBValue(COLORREF colour)
{
    return static_cast<BYTE>(colour >> 16);
}

constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

// Handles are opaque: one type each, so that a pen can't stand where a brush is wanted.
using HGDIOBJ = void *;
using HDC = struct HDC__ *;
using HPEN = struct HPEN__ *;
using HBRUSH = struct HBRUSH__ *;
using HFONT = struct HFONT__ *;
using HBITMAP = struct HBITMAP__ *;
using HRGN = struct HRGN__ *;

struct tagPOINT
{
    LONG x, y;
};
using POINT = tagPOINT;

struct tagSIZE
{
    LONG cx, cy;
};
using SIZE = tagSIZE;

/// A rectangle; right and bottom lie just outside of it.
struct tagRECT
{
    LONG left, top, right, bottom;
};
using RECT = tagRECT;

struct tagLOGPEN
{
    UINT lopnStyle;      ///< PS_...
    POINT lopnWidth;     ///< x is the width in logical units; 0 is one device pixel. y isn't used.
    COLORREF lopnColor;  ///< Colour of the pen.
};
using LOGPEN = tagLOGPEN;

struct tagLOGBRUSH
{
    UINT lbStyle;                ///< BS_...
    COLORREF lbColor;            ///< Colour of a solid or hatched brush.
    unsigned long long lbHatch;  ///< HS_... of a hatched brush, the bitmap's handle of a pattern brush.
};
using LOGBRUSH = tagLOGBRUSH;

constexpr int LF_FACESIZE = 32;

struct tagLOGFONTA
{
    LONG lfHeight;       ///< Above 0: height of the cell; below 0: minus the height of the letters (em).
    LONG lfWidth;        ///< Average width of a letter; 0 follows from the height.
    LONG lfEscapement;   ///< Angle of the base line in tenths of a degree, anticlockwise.
    LONG lfOrientation;  ///< Angle of the letters in tenths of a degree.
    LONG lfWeight;       ///< 400 normal, 700 bold.
    BYTE lfItalic, lfUnderline, lfStrikeOut;
    BYTE lfCharSet;
    BYTE lfOutPrecision, lfClipPrecision, lfQuality, lfPitchAndFamily;
    char lfFaceName[LF_FACESIZE];
};
using LOGFONTA = tagLOGFONTA;
using LOGFONT = LOGFONTA;

struct tagTEXTMETRICA
{
    LONG tmHeight, tmAscent, tmDescent;         ///< Height of the cell, above and below the base line.
    LONG tmInternalLeading, tmExternalLeading;  ///< Room for accents inside the cell; between the lines.
    LONG tmAveCharWidth, tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
    LONG tmDigitizedAspectX, tmDigitizedAspectY;
    BYTE tmFirstChar, tmLastChar, tmDefaultChar, tmBreakChar;
    BYTE tmItalic, tmUnderlined, tmStruckOut;
    BYTE tmPitchAndFamily;
    BYTE tmCharSet;
};
using TEXTMETRICA = tagTEXTMETRICA;
using TEXTMETRIC = TEXTMETRICA;

struct tagBITMAP
{
    LONG bmType;
    LONG bmWidth, bmHeight;
    LONG bmWidthBytes;  ///< Bytes of a row of pixels.
    WORD bmPlanes;
    WORD bmBitsPixel;
    void * bmBits;  ///< Null: the pixels aren't handed out.
};
using BITMAP = tagBITMAP;

// Pens.
constexpr int PS_SOLID = 0;
constexpr int PS_DASH = 1;
constexpr int PS_DOT = 2;
constexpr int PS_DASHDOT = 3;
constexpr int PS_DASHDOTDOT = 4;
constexpr int PS_NULL = 5;
constexpr int PS_INSIDEFRAME = 6;

// Brushes.
constexpr UINT BS_SOLID = 0;
constexpr UINT BS_NULL = 1;
constexpr UINT BS_HOLLOW = BS_NULL;
constexpr UINT BS_HATCHED = 2;
constexpr UINT BS_PATTERN = 3;

constexpr int HS_HORIZONTAL = 0;
constexpr int HS_VERTICAL = 1;
constexpr int HS_FDIAGONAL = 2;
constexpr int HS_BDIAGONAL = 3;
constexpr int HS_CROSS = 4;
constexpr int HS_DIAGCROSS = 5;

// Stock objects.
constexpr int WHITE_BRUSH = 0;
constexpr int LTGRAY_BRUSH = 1;
constexpr int GRAY_BRUSH = 2;
constexpr int DKGRAY_BRUSH = 3;
constexpr int BLACK_BRUSH = 4;
constexpr int NULL_BRUSH = 5;
constexpr int HOLLOW_BRUSH = NULL_BRUSH;
constexpr int WHITE_PEN = 6;
constexpr int BLACK_PEN = 7;
constexpr int NULL_PEN = 8;
constexpr int SYSTEM_FONT = 13;
constexpr int DEFAULT_GUI_FONT = 17;

// Kinds of objects.
constexpr UINT OBJ_PEN = 1;
constexpr UINT OBJ_BRUSH = 2;
constexpr UINT OBJ_DC = 3;
constexpr UINT OBJ_FONT = 6;
constexpr UINT OBJ_BITMAP = 7;
constexpr UINT OBJ_REGION = 8;
constexpr UINT OBJ_MEMDC = 10;

// Background modes and text alignment.
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;

constexpr UINT TA_NOUPDATECP = 0;
constexpr UINT TA_UPDATECP = 1;
constexpr UINT TA_LEFT = 0;
constexpr UINT TA_RIGHT = 2;
constexpr UINT TA_CENTER = 6;
constexpr UINT TA_TOP = 0;
constexpr UINT TA_BOTTOM = 8;
constexpr UINT TA_BASELINE = 24;

// Raster operations of pens and fills (two operands) and of copies.
constexpr int R2_BLACK = 1;
constexpr int R2_NOTMERGEPEN = 2;
constexpr int R2_MASKNOTPEN = 3;
constexpr int R2_NOTCOPYPEN = 4;
constexpr int R2_MASKPENNOT = 5;
constexpr int R2_NOT = 6;
constexpr int R2_XORPEN = 7;
constexpr int R2_NOTMASKPEN = 8;
constexpr int R2_MASKPEN = 9;
constexpr int R2_NOTXORPEN = 10;
constexpr int R2_NOP = 11;
constexpr int R2_MERGENOTPEN = 12;
constexpr int R2_COPYPEN = 13;
constexpr int R2_MERGEPENNOT = 14;
constexpr int R2_MERGEPEN = 15;
constexpr int R2_WHITE = 16;

constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD SRCPAINT = 0x00EE0086;
constexpr DWORD SRCAND = 0x008800C6;
constexpr DWORD SRCINVERT = 0x00660046;
constexpr DWORD PATCOPY = 0x00F00021;
constexpr DWORD PATINVERT = 0x005A0049;
constexpr DWORD DSTINVERT = 0x00550009;
constexpr DWORD BLACKNESS = 0x00000042;
constexpr DWORD WHITENESS = 0x00FF0062;

// Polygon fill modes, region results, mapping modes.
constexpr int ALTERNATE = 1;
constexpr int WINDING = 2;

constexpr int NULLREGION = 1;
constexpr int SIMPLEREGION = 2;
constexpr int COMPLEXREGION = 3;

constexpr int MM_TEXT = 1;
constexpr int MM_ANISOTROPIC = 8;

// What GetDeviceCaps tells.
constexpr int TECHNOLOGY = 2;
constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;

constexpr int DT_RASDISPLAY = 1;
constexpr int DT_RASPRINTER = 2;

// Fonts.
constexpr int FW_DONTCARE = 0;
constexpr int FW_NORMAL = 400;
constexpr int FW_BOLD = 700;
constexpr BYTE ANSI_CHARSET = 0;
constexpr BYTE DEFAULT_CHARSET = 1;
constexpr BYTE EASTEUROPE_CHARSET = 238;

#endif

#endif
