#ifndef KX7_PLATFORM_BASE_FILE_CHOICE_H
#define KX7_PLATFORM_BASE_FILE_CHOICE_H

#include "platform/base/export.h"
#include "platform/base/string.h"
#include "platform/base/types.h"

#if defined(_WIN32)
#include <commdlg.h>
#else
constexpr DWORD OFN_OVERWRITEPROMPT = 0x2;
constexpr DWORD OFN_HIDEREADONLY = 0x4;
constexpr DWORD OFN_PATHMUSTEXIST = 0x800;
constexpr DWORD OFN_FILEMUSTEXIST = 0x1000;
#endif

/// What the user is asked when a file is to be chosen.
struct TSFileChoice
{
    bool save = false;  ///< Whether the file is to be written.
    CString title;      ///< Title of the dialog.
    CString fileName;   ///< Name to start with.
    CString extension;  ///< Extension for a name that is given without one.
    CString filter;     ///< Pairs of a text and a pattern, each ended by "|", and one "|" more at the end.
    DWORD flags = 0;    ///< The system's flags of its file dialogs, OFN_...
};

/// Lets the user choose; the path goes to `path`. 1, or 0 if the user cancels.
using FileChoiceHandler = int (*)(TSFileChoice const & choice, CString & path);

/// Sets what stands for the system's open and save dialogs; null for none, which cancels each choice. The
/// result is the handler that was set before: on Windows the dialogs themselves, elsewhere null.
KX7_API FileChoiceHandler SetFileChoiceHandler(FileChoiceHandler handler);

/// Asks the handler.
KX7_API int ChooseFile(TSFileChoice const & choice, CString & path);

#endif
