// A host that doesn't link the library but loads it, and frees it again.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace {
std::wstring TextOf(HMODULE module, UINT id)
{
    wchar_t text[200] = {};
    LoadStringW(module, id, text, 200);
    return text;
}

template <class Function>
Function Entry(HMODULE module, char const * name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(module, name)));
}

std::string g_asked;

int Answer(char const * text, unsigned int)
{
    g_asked = text;
    return IDNO;
}
}  // namespace

TEST(LoadingHost, LoadsTheLibraryUsesItAndFreesIt)
{
    ASSERT_EQ(GetModuleHandleW(L"KX7Utlt.dll"), nullptr) << "this program must not link the library";
    HMODULE const library = LoadLibraryW(L"KX7Utlt.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(TextOf(library, 55009), L"Integrál");

    // Through the library's entry its own texts are found: a message by id reaches the handler.
    using Handler = int (*)(char const *, unsigned int);
    auto const setHandler = Entry<Handler (*)(Handler)>(library, "_Z20SetMessageBoxHandlerPFiPKcjE");
    auto const ask = Entry<int (*)(unsigned int, unsigned int)>(library, "_Z13AfxMessageBoxjj");
    ASSERT_TRUE(setHandler && ask);
    setHandler(Answer);
    EXPECT_EQ(ask(55009, MB_YESNO), IDNO);
    EXPECT_EQ(g_asked, "Integr\xE1l");

    EXPECT_TRUE(FreeLibrary(library));
    EXPECT_EQ(GetModuleHandleW(L"KX7Utlt.dll"), nullptr);
}

TEST(LoadingHost, LoadsItAgain)
{
    HMODULE const library = LoadLibraryW(L"KX7Utlt.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(TextOf(library, 55004), L"Derivace");
    EXPECT_TRUE(FreeLibrary(library));
}
