#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include "platform/device/cairo/context.h"
#include "platform/device/cairo/font.h"
#include "platform/device/gdi.h"

using namespace detail;

namespace {
constexpr UINT kHorizontalAlign = 6;  // bits of TA_LEFT, TA_RIGHT, TA_CENTER
constexpr UINT kVerticalAlign = 24;   // bits of TA_TOP, TA_BOTTOM, TA_BASELINE
constexpr double kTenthsPerHalfTurn = 1800;

std::shared_ptr<SizedFont const> FontOf(DeviceContext const & context)
{
    FontObject const & font = *context.m_font.Get();
    double const scale = context.m_mapping.ScaleY();
    if (font.m_stock)  // the one object that threads share keeps nothing
        return SizedFont::For(font.m_record, scale);
    if (!font.m_sized || font.m_sizedScale != scale) {
        font.m_sized = SizedFont::For(font.m_record, scale);
        font.m_sizedScale = scale;
    }
    return font.m_sized;
}

int ToLogical(int device, double scale)
{
    return static_cast<int>(std::lround(device / scale));
}

TextLine LineOf(DeviceContext const & context, std::string_view text)
{
    LOGFONT const & record = context.m_font->m_record;
    TextLine line;
    line.font = FontOf(context);
    line.text = text;
    line.angle = record.lfEscapement * std::numbers::pi / kTenthsPerHalfTurn;
    line.underline = record.lfUnderline != 0;
    line.strikeOut = record.lfStrikeOut != 0;
    return line;
}

/// How far along and below the start of the base line the reference point lies.
struct Reference
{
    double along, below;
};

Reference ReferenceOf(TextLine const & line, UINT align)
{
    double const width = line.font->Width(line.text);
    UINT const horizontal = align & kHorizontalAlign;
    UINT const vertical = align & kVerticalAlign;
    double const along = horizontal == TA_CENTER ? std::floor(width / 2) : horizontal == TA_RIGHT ? width : 0;
    double const below = vertical == TA_BASELINE ? 0
                         : vertical == TA_BOTTOM ? line.font->Descent()
                                                 : -line.font->Ascent();
    return {along, below};
}

void PlaceAt(TextLine & line, POINT reference, UINT align)
{
    Reference const offset = ReferenceOf(line, align);
    double const c = std::cos(line.angle);
    double const s = std::sin(line.angle);
    line.x = reference.x - offset.along * c - offset.below * s;
    line.y = reference.y + offset.along * s - offset.below * c;
}

/// Fills the text's cell with the background colour.
void FillCell(DeviceContext & context, TextLine const & line)
{
    double const width = line.font->Width(line.text);
    double const above = -line.font->Ascent();
    double const below = line.font->Descent();
    POINT const corners[] = {line.At(0, above), line.At(width, above), line.At(width, below),
                             line.At(0, below)};
    int const count = 4;
    BrushObject const brush(LOGBRUSH{BS_SOLID, context.m_backgroundColour, 0});
    context.m_painter->Polygons(corners, {&count, 1}, context.FillInk(&brush));
}

/// Moves the current position to where the next text goes on.
void UpdatePosition(DeviceContext & context, TextLine const & line)
{
    UINT const horizontal = context.m_textAlign & kHorizontalAlign;
    if (horizontal == TA_CENTER)
        return;
    double const width = line.font->Width(line.text) * (horizontal == TA_RIGHT ? -1.0 : 1.0);
    POINT const device = context.m_mapping.ToDevice(context.m_position);
    TextLine advance = line;
    advance.x = device.x;
    advance.y = device.y;
    context.m_position = context.m_mapping.ToLogical(advance.At(width, 0));
}
}  // namespace

BOOL TextOut(HDC hdc, int x, int y, char const * text, int length)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context || !text || length < 0)
        return FALSE;
    std::string_view const characters(text, static_cast<std::size_t>(length));
    bool const atPosition = (context->m_textAlign & TA_UPDATECP) != 0;
    POINT const reference = atPosition ? context->m_position : POINT{x, y};
    if (context->m_recording) {
        Record(*context, EDrawn::Text, {reference});
        context->m_recording->back().text = characters;
    }
    if (characters.empty())
        return TRUE;
    TextLine line = LineOf(*context, characters);
    PlaceAt(line, context->m_mapping.ToDevice(reference), context->m_textAlign);
    if (context->m_painter && context->m_backgroundMode == OPAQUE)
        FillCell(*context, line);
    if (context->m_painter)
        context->m_painter->Text(line, context->FillInk(nullptr));
    if (atPosition)
        UpdatePosition(*context, line);
    return TRUE;
}

BOOL GetTextExtentPoint32(HDC hdc, char const * text, int length, SIZE * size)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !text || length < 0 || !size)
        return FALSE;
    std::shared_ptr<SizedFont const> const font = FontOf(*context);
    int const width = font->Width({text, static_cast<std::size_t>(length)});
    *size = {ToLogical(width, context->m_mapping.ScaleX()),
             ToLogical(font->Ascent() + font->Descent(), context->m_mapping.ScaleY())};
    return TRUE;
}

BOOL GetTextMetrics(HDC hdc, TEXTMETRIC * metrics)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !metrics)
        return FALSE;
    LOGFONT const & record = context->m_font->m_record;
    std::shared_ptr<SizedFont const> const font = FontOf(*context);
    double const scaleX = context->m_mapping.ScaleX();
    double const scaleY = context->m_mapping.ScaleY();
    *metrics = {};
    metrics->tmAscent = ToLogical(font->Ascent(), scaleY);
    metrics->tmDescent = ToLogical(font->Descent(), scaleY);
    metrics->tmHeight = metrics->tmAscent + metrics->tmDescent;
    metrics->tmInternalLeading = ToLogical(font->Ascent() + font->Descent() - font->Em(), scaleY);
    metrics->tmExternalLeading = ToLogical(font->ExternalLeading(), scaleY);
    metrics->tmAveCharWidth = ToLogical(font->AverageWidth(), scaleX);
    metrics->tmMaxCharWidth = ToLogical(font->MaximumWidth(), scaleX);
    metrics->tmWeight = record.lfWeight ? record.lfWeight : FW_NORMAL;
    metrics->tmDigitizedAspectX = metrics->tmDigitizedAspectY = context->m_traits.dotsPerInch;
    metrics->tmFirstChar = ' ';
    metrics->tmLastChar = 0xFF;
    metrics->tmDefaultChar = '?';
    metrics->tmBreakChar = ' ';
    metrics->tmItalic = record.lfItalic;
    metrics->tmUnderlined = record.lfUnderline;
    metrics->tmStruckOut = record.lfStrikeOut;
    metrics->tmPitchAndFamily = record.lfPitchAndFamily;
    metrics->tmCharSet = record.lfCharSet;
    return TRUE;
}
