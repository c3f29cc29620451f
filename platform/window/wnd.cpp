#include "platform/window/wnd.h"

#include "platform/window/detail_wide_text.h"

IMPLEMENT_DYNCREATE(CWnd, CObject)

namespace {
// The property of a window that holds its object.
constexpr wchar_t kObjectProperty[] = L"KX7Utlt.CWnd";
constexpr wchar_t kPlainWindowClass[] = L"KX7Utlt.Window";

// Registering again fails and does no harm.
wchar_t const * PlainWindowClass()
{
    WNDCLASSW record = {};
    record.lpfnWndProc = ::DefWindowProcW;
    record.hInstance = ::GetModuleHandleW(nullptr);
    record.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    record.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    record.lpszClassName = kPlainWindowClass;
    ::RegisterClassW(&record);
    return kPlainWindowClass;
}
}  // namespace

CWnd::~CWnd()
{
    DestroyWindow();
}

BOOL CWnd::Create(char const * windowClass, char const * text, DWORD style, RECT const & place, CWnd * parent,
                  UINT id)
{
    if (m_hWnd)
        return FALSE;
    std::wstring const className = windowClass ? detail::WideText(windowClass) : PlainWindowClass();
    HWND const window = ::CreateWindowExW(
        0, className.c_str(), detail::WideText(text).c_str(), style, place.left, place.top,
        place.right - place.left, place.bottom - place.top, parent ? parent->m_hWnd : nullptr,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), ::GetModuleHandleW(nullptr), nullptr);
    return SubclassWindow(window);
}

BOOL CWnd::SubclassWindow(HWND window)
{
    if (!window || m_hWnd || FromHandlePermanent(window))
        return FALSE;
    if (!::SetPropW(window, kObjectProperty, this))
        return FALSE;
    m_hWnd = window;
    // Kept before the exchange, after which messages may come at once.
    m_formerProcedure = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC));
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&CWnd::Procedure));
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd * parent)
{
    return SubclassWindow(::GetDlgItem(parent->m_hWnd, static_cast<int>(id)));
}

BOOL CWnd::DestroyWindow()
{
    return m_hWnd && ::DestroyWindow(m_hWnd);
}

CWnd * CWnd::FromHandlePermanent(HWND window)
{
    return static_cast<CWnd *>(::GetPropW(window, kObjectProperty));
}

void CWnd::SetWindowText(char const * text)
{
    ::SetWindowTextW(m_hWnd, detail::WideText(text).c_str());
}

void CWnd::GetWindowText(CString & text) const
{
    std::wstring wide(static_cast<std::size_t>(::GetWindowTextLengthW(m_hWnd)) + 1, L'\0');
    wide.resize(
        static_cast<std::size_t>(::GetWindowTextW(m_hWnd, wide.data(), static_cast<int>(wide.size()))));
    text = detail::NarrowText(wide);
}

void CWnd::MoveWindow(RECT const & place, BOOL repaint)
{
    ::MoveWindow(m_hWnd, place.left, place.top, place.right - place.left, place.bottom - place.top, repaint);
}

CRect CWnd::GetPlaceInParent() const
{
    CRect place;
    ::GetWindowRect(m_hWnd, &place);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT *>(&place), 2);
    return place;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (HBRUSH const brush = ColoursOfControl(message, wParam, lParam))
        return reinterpret_cast<LRESULT>(brush);
    if (AFX_MSGMAP_ENTRY const * entry = FindEntry(message, wParam))
        return entry->handler(*this, wParam, lParam);
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::CallWindowProcW(m_formerProcedure, m_hWnd, message, wParam, lParam);
}

HBRUSH CWnd::CtlColor(CDC *, UINT)
{
    return nullptr;
}

AFX_MSGMAP const * CWnd::GetThisMessageMap()
{
    static AFX_MSGMAP const map = {nullptr, {}};
    return &map;
}

AFX_MSGMAP const * CWnd::GetMessageMap() const
{
    return GetThisMessageMap();
}

LRESULT CALLBACK CWnd::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CWnd * const object = FromHandlePermanent(window);
    if (!object)
        return ::DefWindowProcW(window, message, wParam, lParam);
    if (message != WM_NCDESTROY)
        return object->WindowProc(message, wParam, lParam);
    LRESULT const result = object->WindowProc(message, wParam, lParam);
    object->Leave();
    return result;
}

// The system asks a control's parent for its colours; the question goes on to the control's own object.
HBRUSH CWnd::ColoursOfControl(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message < WM_CTLCOLORMSGBOX || message > WM_CTLCOLORSTATIC)
        return nullptr;
    CWnd * const control = FromHandlePermanent(reinterpret_cast<HWND>(lParam));
    if (!control)
        return nullptr;
    CDC dc;
    dc.Attach(reinterpret_cast<HDC>(wParam));
    HBRUSH const brush = control->CtlColor(&dc, message - WM_CTLCOLORMSGBOX);
    dc.Detach();
    return brush;
}

AFX_MSGMAP_ENTRY const * CWnd::FindEntry(UINT message, WPARAM wParam) const
{
    UINT const code = message == WM_COMMAND ? HIWORD(wParam) : 0;
    UINT const id = message == WM_COMMAND ? LOWORD(wParam) : 0;
    for (AFX_MSGMAP const * map = GetMessageMap(); map; map = map->baseMap ? map->baseMap() : nullptr) {
        for (AFX_MSGMAP_ENTRY const & entry : map->entries) {
            if (entry.message == message && entry.code == code && entry.id == id)
                return &entry;
        }
    }
    return nullptr;
}

// The window is gone.
void CWnd::Leave()
{
    ::RemovePropW(m_hWnd, kObjectProperty);
    ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_formerProcedure));
    m_hWnd = nullptr;
    m_formerProcedure = nullptr;
}
