#include "dxf/layer_choice_dialog.h"

#include <commctrl.h>

#include "dxf/layer_choice.h"
#include "platform/window/detail_wide_text.h"
#include "resources/dialog_ids.h"

IMPLEMENT_DYNAMIC(CLayerChoiceDialog, CDialog)

BEGIN_MESSAGE_MAP(CLayerChoiceDialog, CDialog)
ON_BN_CLICKED(IDC_LAYER_CHOICE_SELECT_ALL, &CLayerChoiceDialog::OnSelectAll)
ON_BN_CLICKED(IDC_LAYER_CHOICE_CLEAR, &CLayerChoiceDialog::OnClear)
END_MESSAGE_MAP()

namespace {
// Check boxes of a list are its state pictures: 1 without and 2 with a tick.
constexpr UINT kNoTick = 1;
constexpr UINT kTick = 2;

void ShowDialog(CStringArray const & names, CByteArray & flags)
{
    CLayerChoiceDialog(names, flags).DoModal();
}

[[maybe_unused]] LayerChoiceHandler const g_handlerBefore = SetLayerChoiceHandler(ShowDialog);
}  // namespace

CLayerChoiceDialog::CLayerChoiceDialog(CStringArray const & names, CByteArray & flags)
    : CDialog(IDD_LAYER_CHOICE), m_names(names), m_flags(flags)
{
}

int CLayerChoiceDialog::DoModal()
{
    if (m_names.GetSize() != m_flags.GetSize())
        return -1;
    INITCOMMONCONTROLSEX const controls = {sizeof controls, ICC_LISTVIEW_CLASSES};
    ::InitCommonControlsEx(&controls);
    return CDialog::DoModal();
}

BOOL CLayerChoiceDialog::OnInitDialog()
{
    m_list.SubclassDlgItem(IDC_LAYER_CHOICE_LIST, this);
    m_list.SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    FillList();
    return TRUE;
}

void CLayerChoiceDialog::OnOK()
{
    for (int row = 0; row < m_flags.GetSize(); ++row) {
        auto const state = static_cast<UINT>(
            m_list.SendMessage(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK));
        m_flags[row] = state == INDEXTOSTATEIMAGEMASK(kTick);
    }
    CDialog::OnOK();
}

void CLayerChoiceDialog::FillList()
{
    CRect client;
    m_list.GetClientRect(&client);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = client.Width() - ::GetSystemMetrics(SM_CXVSCROLL);
    m_list.SendMessage(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    for (int row = 0; row < m_names.GetSize(); ++row) {
        std::wstring name = detail::WideText(m_names[row]);
        LVITEMW item = {};
        item.mask = LVIF_TEXT;
        item.iItem = row;
        item.pszText = name.data();
        m_list.SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
        Tick(row, m_flags[row] == 1);
    }
}

void CLayerChoiceDialog::TickAll(BOOL ticked)
{
    for (int row = 0; row < m_names.GetSize(); ++row)
        Tick(row, ticked);
}

void CLayerChoiceDialog::Tick(int row, BOOL ticked)
{
    LVITEMW item = {};
    item.state = INDEXTOSTATEIMAGEMASK(ticked ? kTick : kNoTick);
    item.stateMask = LVIS_STATEIMAGEMASK;
    m_list.SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}
