#ifndef KX7_PLATFORM_DEVICE_CAIRO_CONTEXT_H
#define KX7_PLATFORM_DEVICE_CAIRO_CONTEXT_H

#include <optional>

#include "platform/base/system_information.h"
#include "platform/device/cairo/mapping.h"
#include "platform/device/cairo/painter.h"
#include "platform/device/recording.h"

namespace detail {
/// What GetDeviceCaps tells of a device.
struct DeviceTraits
{
    int technology;
    int width, height;  ///< In pixels.
    int dotsPerInch;
};

/// Stands for the screen.
constexpr DeviceTraits kScreen = {DT_RASDISPLAY, kNominalScreenWidth, kNominalScreenHeight, 96};

/// An object selected into a context.
template <typename Object>
class Selection
{
  public:
    /// Selects another object and gives the old handle back.
    HGDIOBJ Put(HGDIOBJ handle)
    {
        HGDIOBJ const old = m_handle;
        if (m_object)
            --m_object->m_selections;
        m_handle = handle;
        m_object = Find<Object>(handle);
        if (m_object)
            ++m_object->m_selections;
        return old;
    }

    HGDIOBJ Handle() const { return m_handle; }
    Object * operator->() const { return m_object; }
    Object * Get() const { return m_object; }

  private:
    HGDIOBJ m_handle = nullptr;
    Object * m_object = nullptr;
};

/// A device context: its settings, its objects and the painter of its surface.
class DeviceContext final : public GraphicsObject
{
  public:
    static constexpr ObjectKind kKind = ObjectKind::Context;

    /// A context on a surface of its own; with no painter nothing is drawn.
    DeviceContext(DeviceTraits const & traits, std::unique_ptr<Painter> painter);
    ~DeviceContext() override;

    /// The settings of a drawing call, in device units.
    Ink CurrentInk() const;

    /// Settings with one brush in place of the selected one, for fills without outline.
    Ink FillInk(BrushObject const * brush) const;

    /// Selects a bitmap to draw on; memory contexts only.
    HGDIOBJ SelectBitmap(HGDIOBJ handle, BitmapObject & bitmap);

    void SetClip(std::optional<Region> clip);

    /// The clip within the surface, in device units.
    Region VisibleClip() const;

    DeviceTraits m_traits;
    std::unique_ptr<Painter> m_painter;
    bool m_isMemory = false;
    Mapping m_mapping;
    Selection<PenObject> m_pen;
    Selection<BrushObject> m_brush;
    Selection<FontObject> m_font;
    Selection<BitmapObject> m_bitmap;
    POINT m_position = {0, 0};  ///< Current position in logical units.
    COLORREF m_textColour = 0;
    COLORREF m_backgroundColour = 0xFFFFFF;
    int m_backgroundMode = OPAQUE;
    UINT m_textAlign = 0;
    int m_operation = R2_COPYPEN;
    int m_fillMode = ALTERNATE;
    std::optional<Region> m_clip;
    std::vector<TSDrawnCall> * m_recording = nullptr;  ///< Where calls are kept; not owned.
};

/// The context of a handle; null if it is none.
inline DeviceContext * FindContext(HDC hdc)
{
    return Find<DeviceContext>(hdc);
}

/// Enters a context; null if there is no room for it.
HDC EnterContext(std::unique_ptr<DeviceContext> context);

/// Keeps a call with the context's settings if the context records.
void Record(DeviceContext & context, EDrawn kind, std::vector<POINT> points);
}  // namespace detail

#endif
