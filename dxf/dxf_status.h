#ifndef KX7_DXF_DXF_STATUS_H
#define KX7_DXF_DXF_STATUS_H

// The status that every read operation and hook of the DXF reader returns.

inline constexpr int DXF_GO_ON = 0;          ///< Go on.
inline constexpr int DXF_STREAM_ENDED = 2;   ///< The stream ended while a line was wanted.
inline constexpr int DXF_EMPTY_CODE = 3;     ///< A group-code line was empty.
inline constexpr int DXF_AT_GROUP_ZERO = 4;  ///< A group 0 line ended the entity. It is the current line now:
                                             ///< the caller must look at it and not read another.
inline constexpr int DXF_NO_VERTEX_COUNT = 5;  ///< LWPOLYLINE vertices came without a usable vertex count.
inline constexpr int DXF_NO_RADIUS = 8;        ///< Arc radius below 1e-8.
inline constexpr int DXF_NO_SPAN = 9;          ///< Arc with no span.
inline constexpr int DXF_LAYER_REFUSED = 10;   ///< A layer couldn't be added to the table.

/// What kind of entity `CDXFInBasic::PreReadControl` is asked about.
enum EDXFEntType
{
    DXF_SIMPLE_ENTITY = 0,  ///< LINE, 3DLINE, CIRCLE, TEXT, MTEXT, SOLID, 3DFACE.
    DXF_LWPOLYLINE = 1,
    DXF_POLYLINE = 2,  ///< POLYLINE, and a VERTEX outside of one.
    DXF_ARC_OR_INSERT = 5
};

#endif
