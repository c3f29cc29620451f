#ifndef KX7_PLATFORM_DEVICE_WIN32_METAFILE_READER_H
#define KX7_PLATFORM_DEVICE_WIN32_METAFILE_READER_H

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/device/recording.h"

namespace detail {
/// Turns the records of an enhanced metafile into drawn calls.
class MetafileReader
{
  public:
    void Read(HENHMETAFILE metafile);

    int LeftSelected() const;
    int LeftUndeleted() const { return static_cast<int>(m_selectedOnce.size()); }

    std::vector<TSDrawnCall> m_calls;

  private:
    static int CALLBACK OnRecord(HDC, HANDLETABLE *, ENHMETARECORD const * record, int, LPARAM reader);

    void ReadRecord(ENHMETARECORD const & record);
    bool ReadState(ENHMETARECORD const & record);
    bool ReadObject(ENHMETARECORD const & record);
    void ReadDrawing(ENHMETARECORD const & record);
    void Select(DWORD handle);
    void SelectStock(int object);
    void Delete(DWORD handle);
    void Add(EDrawn kind, std::vector<POINT> points);
    void AddBox(EDrawn kind, RECTL const & inclusive);
    void AddLine(POINTL const & to);
    void AddText(EMREXTTEXTOUTW const & record);
    void AddFill(EMRFILLRGN const & record);
    void AddCopy(EMRBITBLT const & record);
    void AddStretch(EMRSTRETCHBLT const & record);

    TSDrawnCall m_state;  ///< The settings as they stand.
    POINT m_position = {0, 0};
    std::map<DWORD, LOGPEN> m_pens;
    std::map<DWORD, LOGBRUSH> m_brushes;
    std::map<DWORD, LOGFONT> m_fonts;
    std::set<DWORD> m_selectedOnce;            ///< Objects that were selected and aren't deleted.
    DWORD m_pen = 0, m_brush = 0, m_font = 0;  ///< Selected handles; 0 for stock objects.
};
}  // namespace detail

#endif
