#include "platform/base/message_box.h"

#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>
#include <utility>

#include "platform/base/code_page.h"
#include "platform/base/string.h"

namespace {
MessageBoxHandler g_messageBoxHandler = nullptr;

#if defined(_WIN32)

constexpr unsigned int kIconMask = 0xF0;

// The program's name, as the title of its messages.
std::wstring ProgramName()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).stem().wstring();
}

int ShowMessage(char const * text, unsigned int type)
{
    std::u16string const wide = Utf16From1250(text);
    return MessageBoxW(GetActiveWindow(), reinterpret_cast<wchar_t const *>(wide.c_str()),
                       ProgramName().c_str(), type & kIconMask ? type : type | MB_ICONEXCLAMATION);
}

#else

// The buttons of each type from the left; 0 where there is none.
constexpr int kButtons[][3] = {
    {IDOK, 0, 0},     {IDOK, IDCANCEL, 0},   {IDABORT, IDRETRY, IDIGNORE}, {IDYES, IDNO, IDCANCEL},
    {IDYES, IDNO, 0}, {IDRETRY, IDCANCEL, 0}};

// A default button that the type doesn't have counts as the first.
int DefaultButton(unsigned int type)
{
    unsigned int const row = type & MB_TYPEMASK;
    auto const & buttons = kButtons[row < std::size(kButtons) ? row : 0];
    unsigned int const index = (type & MB_DEFMASK) / MB_DEFBUTTON2;
    return index < std::size(buttons) && buttons[index] != 0 ? buttons[index] : buttons[0];
}

int ShowMessage(char const * text, unsigned int type)
{
    std::fprintf(stderr, "%s\n", Utf8From1250(text).c_str());
    return DefaultButton(type);
}

#endif
}  // namespace

MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler)
{
    return std::exchange(g_messageBoxHandler, handler);
}

int AfxMessageBox(char const * text, unsigned int type)
{
    return (g_messageBoxHandler ? g_messageBoxHandler : ShowMessage)(text ? text : "", type);
}

int AfxMessageBox(unsigned int id, unsigned int type)
{
    CString text;
    text.LoadString(id);
    return AfxMessageBox(static_cast<char const *>(text), type);
}
