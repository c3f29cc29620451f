#ifndef KX7_PLATFORM_DEVICE_RECORDING_H
#define KX7_PLATFORM_DEVICE_RECORDING_H

#include <string>
#include <vector>

#include "platform/device/dc.h"

/// What a drawing call did.
enum class EDrawn
{
    Line,         ///< Two points: from, to.
    Polyline,     ///< Its points.
    Polygon,      ///< Its points.
    PolyPolygon,  ///< The points of all polygons, one after the other.
    Rectangle,    ///< Two points: left top, right bottom.
    Ellipse,      ///< The same, of the rectangle around it.
    FillRegion,   ///< The same, of the region's box.
    Fill,         ///< The same; FillRect and PatBlt, with the brush.
    Pixel,        ///< One point; the colour is in `textColour`.
    Text,         ///< One point: the reference point; the text in `text`.
    Copy          ///< Two points: left top, right bottom of the target.
};

/// One drawing call with the settings that it was drawn with. Coordinates are logical units.
struct TSDrawnCall
{
    EDrawn kind = EDrawn::Line;
    std::vector<POINT> points;
    std::string text;
    LOGPEN pen = {};
    LOGBRUSH brush = {};
    LOGFONT font = {};
    COLORREF textColour = 0;
    COLORREF backgroundColour = 0xFFFFFF;
    int backgroundMode = OPAQUE;
    UINT textAlign = 0;
    int rasterOperation = R2_COPYPEN;
    DWORD copyOperation = 0;  ///< SRCCOPY, ... of Fill and Copy.
};

/// A context like the screen's that draws nothing and keeps what is drawn, so that painting can be checked
/// call by call.
///
///     CRecordingDC recording;
///     Paint(&recording);
///     std::vector<TSDrawnCall> const drawn = recording.Close();
class KX7_API CRecordingDC : public CDC
{
    DECLARE_DYNAMIC(CRecordingDC)

  public:
    CRecordingDC();
    ~CRecordingDC() override;

    /// Ends the recording and gives the calls in their order. There is no context afterwards.
    std::vector<TSDrawnCall> Close();

    /// After Close: how many of pen, brush and font were left selected that aren't stock objects.
    int GetLeftSelected() const { return m_leftSelected; }

    /// After Close: how many objects that were made since the start weren't deleted. On Windows those alone
    /// count that were selected at some time.
    int GetLeftUndeleted() const { return m_leftUndeleted; }

  private:
    std::vector<TSDrawnCall> m_calls;
    int m_objectsBefore = 0;
    int m_leftSelected = 0;
    int m_leftUndeleted = 0;
};

#endif
