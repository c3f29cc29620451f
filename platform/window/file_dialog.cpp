// The system's open and save dialogs behind the file choice of platform/base.
#include <algorithm>
#include <string>

#include "platform/base/file_choice.h"
#include "platform/window/detail_wide_text.h"

namespace {
constexpr DWORD kLongestPath = 32768;  // characters of the answer with its NUL

// The dialog wants the texts and patterns ended by NULs, and one more at the end.
std::wstring FilterOf(CString const & filter)
{
    std::wstring wide = detail::WideText(filter);
    std::replace(wide.begin(), wide.end(), L'|', L'\0');
    return wide + L'\0';
}

int ShowFileDialog(TSFileChoice const & choice, CString & path)
{
    std::wstring const title = detail::WideText(choice.title);
    std::wstring const extension = detail::WideText(choice.extension);
    std::wstring const filter = FilterOf(choice.filter);
    std::wstring answer = detail::WideText(choice.fileName);
    answer.resize(kLongestPath);
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof(dialog);
    dialog.hwndOwner = ::GetActiveWindow();
    dialog.lpstrTitle = title.empty() ? nullptr : title.c_str();
    dialog.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
    dialog.lpstrFilter = choice.filter.IsEmpty() ? nullptr : filter.c_str();
    dialog.lpstrFile = answer.data();
    dialog.nMaxFile = kLongestPath;
    dialog.Flags = choice.flags | OFN_EXPLORER | OFN_NOCHANGEDIR;
    if (!(choice.save ? ::GetSaveFileNameW(&dialog) : ::GetOpenFileNameW(&dialog)))
        return 0;
    path = detail::NarrowText(answer.c_str());
    return 1;
}

// Every program on the library has the dialogs from its start; a host may set a handler of its own.
[[maybe_unused]] FileChoiceHandler const g_formerHandler = SetFileChoiceHandler(ShowFileDialog);
}  // namespace
