#ifndef KX7_DXF_LAYER_CHOICE_DIALOG_H
#define KX7_DXF_LAYER_CHOICE_DIALOG_H

#include "platform/base/collections.h"
#include "platform/window/dialog.h"

/// The dialog in which a user ticks the layers to read. The library asks it behind ChooseLayers unless a host
/// sets a handler of its own (layer_choice.h). (Windows build only.)
class KX7_API CLayerChoiceDialog : public CDialog
{
    DECLARE_DYNAMIC(CLayerChoiceDialog)

  public:
    /// Both arrays stay the caller's; a flag of 1 is a tick at the start. The flags are written by the
    /// forward button alone.
    CLayerChoiceDialog(CStringArray const & names, CByteArray & flags);

    /// IDOK for the forward button, IDCANCEL for leaving without a choice, -1 with nothing shown if the
    /// arrays differ in length.
    int DoModal() override;

  protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnSelectAll() { TickAll(TRUE); }
    void OnClear() { TickAll(FALSE); }

    DECLARE_MESSAGE_MAP()

  private:
    void FillList();
    void TickAll(BOOL ticked);
    void Tick(int row, BOOL ticked);

    CStringArray const & m_names;
    CByteArray & m_flags;
    CWnd m_list;
};

#endif
