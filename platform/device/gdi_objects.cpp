#include "platform/device/gdi_objects.h"

#include "platform/device/dc.h"
#include "platform/device/object_map.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace {
/// The object behind a handle: its owner if that is of the class, else a temporary one.
template <typename Object>
Object * ObjectOf(HGDIOBJ handle)
{
    if (!handle)
        return nullptr;
    if (Object * const owner = dynamic_cast<Object *>(detail::FindOwner(handle)))
        return owner;
    return dynamic_cast<Object *>(detail::FindTemporary(handle, []() -> CGdiObject * { return new Object; }));
}
}  // namespace

CGdiObject::~CGdiObject()
{
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    if (!object || m_hObject)
        return FALSE;
    m_hObject = object;
    detail::EnterOwner(object, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    HGDIOBJ const object = m_hObject;
    if (object)
        detail::RemoveOwner(object, this);
    m_hObject = nullptr;
    return object;
}

BOOL CGdiObject::DeleteObject()
{
    if (!m_hObject)
        return FALSE;
    return ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int size, void * record) const
{
    return ::GetObject(m_hObject, size, record);
}

CPen * CPen::FromHandle(HPEN pen)
{
    return ObjectOf<CPen>(pen);
}

BOOL CBrush::CreatePatternBrush(CBitmap * bitmap)
{
    return bitmap ? Attach(::CreatePatternBrush(*bitmap)) : FALSE;
}

CBrush * CBrush::FromHandle(HBRUSH brush)
{
    return ObjectOf<CBrush>(brush);
}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                       BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                       BYTE quality, BYTE pitchAndFamily, char const * face)
{
    return Attach(::CreateFont(height, width, escapement, orientation, weight, italic, underline, strikeOut,
                               charSet, outPrecision, clipPrecision, quality, pitchAndFamily, face));
}

CFont * CFont::FromHandle(HFONT font)
{
    return ObjectOf<CFont>(font);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC * dc, int width, int height)
{
    return dc ? Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height)) : FALSE;
}

CBitmap * CBitmap::FromHandle(HBITMAP bitmap)
{
    return ObjectOf<CBitmap>(bitmap);
}

CRgn * CRgn::FromHandle(HRGN region)
{
    return ObjectOf<CRgn>(region);
}
