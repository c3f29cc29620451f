#ifndef KX7_PLATFORM_BASE_TYPES_H
#define KX7_PLATFORM_BASE_TYPES_H

// The Win32 scalar types and codes that portable code uses. The Windows build takes them from the system's
// headers; elsewhere the same names are declared here with the same widths and values.
#if defined(_WIN32)

#include <windows.h>

#else

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using LONGLONG = std::int64_t;
using UINT = std::uint32_t;
using ULONGLONG = std::uint64_t;
using BOOL = int;

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;

// A loaded module; see resource_module.h.
struct HINSTANCE__;
using HINSTANCE = HINSTANCE__ *;
using HMODULE = HINSTANCE;

// Message boxes: the buttons, the icon, the default button, and the masks that part them.
constexpr UINT MB_OK = 0x0;
constexpr UINT MB_OKCANCEL = 0x1;
constexpr UINT MB_ABORTRETRYIGNORE = 0x2;
constexpr UINT MB_YESNOCANCEL = 0x3;
constexpr UINT MB_YESNO = 0x4;
constexpr UINT MB_RETRYCANCEL = 0x5;
constexpr UINT MB_ICONSTOP = 0x10;
constexpr UINT MB_ICONQUESTION = 0x20;
constexpr UINT MB_ICONEXCLAMATION = 0x30;
constexpr UINT MB_ICONINFORMATION = 0x40;
constexpr UINT MB_DEFBUTTON1 = 0x0;
constexpr UINT MB_DEFBUTTON2 = 0x100;
constexpr UINT MB_DEFBUTTON3 = 0x200;
constexpr UINT MB_TYPEMASK = 0xF;
constexpr UINT MB_DEFMASK = 0xF00;

// Buttons, as the answers of message boxes and the ids of dialog buttons.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

// Virtual key codes.
constexpr int VK_CANCEL = 0x03;
constexpr int VK_SHIFT = 0x10;
constexpr int VK_CONTROL = 0x11;
constexpr int VK_ESCAPE = 0x1B;

#endif

#endif
