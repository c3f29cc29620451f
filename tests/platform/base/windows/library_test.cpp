// This program links the library; what the loader and the system then know of it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/base/extension_module.h"
#include "platform/base/resource_module.h"
#include "platform/base/string.h"

namespace {
std::vector<char> VersionRecordOf(wchar_t const * path)
{
    DWORD ignored = 0;
    std::vector<char> record(GetFileVersionInfoSizeW(path, &ignored));
    if (!record.empty() && !GetFileVersionInfoW(path, 0, static_cast<DWORD>(record.size()), record.data()))
        record.clear();
    return record;
}

std::string Description(std::vector<char> const & record)
{
    char * text = nullptr;
    UINT length = 0;
    VerQueryValueA(record.data(), "\\StringFileInfo\\040504E2\\FileDescription",
                   reinterpret_cast<void **>(&text), &length);
    return text ? text : "";
}
}  // namespace

TEST(WindowsLibrary, IsLoadedUnderItsName)
{
    HMODULE const library = GetModuleHandleW(L"KX7Utlt.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(CDynLinkLibrary::First()->Record().hModule, library);
    EXPECT_EQ(AfxGetResourceHandle(), GetModuleHandleW(nullptr));
}

TEST(WindowsLibrary, HasAVersionRecord)
{
    std::vector<char> const record = VersionRecordOf(L"KX7Utlt.dll");
    ASSERT_FALSE(record.empty());
    VS_FIXEDFILEINFO * fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(record.data(), L"\\", reinterpret_cast<void **>(&fixed), &length));
    EXPECT_EQ(fixed->dwSignature, 0xFEEF04BDu);
    EXPECT_EQ(fixed->dwFileVersionMS, 0x00010000u);  // 1.0
    EXPECT_EQ(fixed->dwFileVersionLS, 0u);
    EXPECT_EQ(Description(record), "KX7 common utility library");
}

TEST(WindowsLibrary, ItsLanguageLibrariesNameTheirLanguage)
{
    EXPECT_EQ(Description(VersionRecordOf(L"test_language.dll")), "Lang ENGLISH");
}

TEST(WindowsLibrary, ItsResourcesAreFoundByTypeAndName)
{
    // Strings 55024 to 55039 are in block 3440.
    char const * block = MAKEINTRESOURCEA(55024 / 16 + 1);
    EXPECT_EQ(AfxFindResourceHandle(block, MAKEINTRESOURCEA(6)), GetModuleHandleW(L"KX7Utlt.dll"));
    EXPECT_EQ(AfxFindResourceHandle("no such name", MAKEINTRESOURCEA(6)), GetModuleHandleW(nullptr));
}
