#include "platform/base/resource_module.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/base/extension_module.h"
#include "platform/base/string.h"

namespace {
constexpr UINT kDerivative = 55004;
constexpr UINT kLayingOver = 55018;
constexpr UINT kOnlyInLanguage = 60000;
constexpr UINT kNowhere = 59999;
constexpr WORD kCzech = 0x0405;
constexpr WORD kEnglish = 0x0409;

CString Loaded(UINT id)
{
    CString text = "old";
    text.LoadString(id);
    return text;
}

// Loads the tests' language library, and puts everything back at the end.
class LanguageLibrary : public testing::Test
{
  protected:
    ~LanguageLibrary() override
    {
        AfxSetResourceHandle(nullptr);
        AfxFreeLibrary(m_library);
    }

    HINSTANCE m_library = AfxLoadLibrary(KX7_TEST_LANGUAGE_LIBRARY);
};
}  // namespace

TEST(StringResources, AreFoundByIdInCodePage1250)
{
    EXPECT_EQ(Loaded(kDerivative), "Derivace");
    EXPECT_EQ(Loaded(55029),
              "\xB0"
              "C");  // the degree sign
    EXPECT_EQ(Loaded(55006),
              "Textov\xE9 dokumenty (*.txt)|*.txt|V\x9A"
              "echny soubory (*.*)|*.*|");
}

TEST(StringResources, KeepLinesAndBackslashes)
{
    EXPECT_EQ(Loaded(55024), "rad\ndeg\ngra");
    EXPECT_EQ(Loaded(55320), "WAV\\MESSAGEBOX.WAV");
}

TEST(StringResources, MissingOneEmptiesTheText)
{
    CString text = "old";
    EXPECT_FALSE(text.LoadString(kNowhere));
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_FALSE(text.LoadString(0));
    EXPECT_FALSE(text.LoadString(static_cast<HINSTANCE>(nullptr), kDerivative));
}

TEST(StringResources, SmallPointersAreIds)
{
    EXPECT_EQ(CString(reinterpret_cast<char const *>(std::uintptr_t{kDerivative})), "Derivace");
    EXPECT_TRUE(CString(reinterpret_cast<char const *>(std::uintptr_t{kNowhere})).IsEmpty());
}

TEST(StringResources, ComeFromTheWholeLibraryAndItsLanguage)
{
    HINSTANCE const library = CDynLinkLibrary::First()->Record().hResource;
    CString text;
    EXPECT_TRUE(text.LoadString(library, kLayingOver, kCzech));
    EXPECT_EQ(text.Left(6),
              "Vlo\x9E"
              "en");
    EXPECT_TRUE(text.LoadString(library, 55040, kCzech));  // another place inside its block
    EXPECT_EQ(text.Left(5), "Chyba");
    EXPECT_FALSE(text.LoadString(library, kLayingOver, kEnglish));
    EXPECT_FALSE(text.LoadString(library, kNowhere, kCzech));
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(LanguageLibrary, ReplacesTextsOnceItIsTheResourceModule)
{
    ASSERT_NE(m_library, nullptr);
    EXPECT_EQ(Loaded(kDerivative), "Derivace");
    AfxSetResourceHandle(m_library);
    EXPECT_EQ(AfxGetResourceHandle(), m_library);
    EXPECT_EQ(Loaded(kDerivative), "Derivative");
    EXPECT_EQ(Loaded(kLayingOver), "First line\nsecond: \xEC\x9A\xE8\xF8\x9E \x80");
    EXPECT_EQ(Loaded(kOnlyInLanguage), "Own");
    EXPECT_EQ(Loaded(55009), "Integr\xE1l");  // what it doesn't have comes from the library
    AfxSetResourceHandle(nullptr);
    EXPECT_EQ(Loaded(kDerivative), "Derivace");
    EXPECT_EQ(Loaded(kOnlyInLanguage), "");
}

TEST_F(LanguageLibrary, CanBeAskedByItself)
{
    CString text;
    EXPECT_TRUE(text.LoadString(m_library, kDerivative));
    EXPECT_EQ(text, "Derivative");
    EXPECT_FALSE(text.LoadString(m_library, 55009));
    EXPECT_TRUE(text.LoadString(m_library, kDerivative, kEnglish));
    EXPECT_FALSE(text.LoadString(m_library, kDerivative, kCzech));
}

TEST_F(LanguageLibrary, JoinsTheSearchAsAnExtension)
{
    AFX_EXTENSION_MODULE record = {};
    EXPECT_FALSE(AfxInitExtensionModule(record, nullptr));
    ASSERT_TRUE(AfxInitExtensionModule(record, m_library));
    EXPECT_TRUE(record.bInitialized);
    new CDynLinkLibrary(record);
    EXPECT_EQ(Loaded(kOnlyInLanguage), "Own");
    EXPECT_EQ(Loaded(kDerivative), "Derivative");
    AfxTermExtensionModule(record);
    EXPECT_FALSE(record.bInitialized);
    EXPECT_EQ(Loaded(kOnlyInLanguage), "");
    EXPECT_EQ(Loaded(kDerivative), "Derivace");
}

TEST(Libraries, ThatCannotBeLoadedAreNull)
{
    EXPECT_EQ(AfxLoadLibrary("no_such_library_of_ours"), nullptr);
    EXPECT_EQ(AfxLoadLibrary(""), nullptr);
    EXPECT_EQ(AfxLoadLibrary(nullptr), nullptr);
    EXPECT_FALSE(AfxFreeLibrary(nullptr));
    EXPECT_EQ(FindLibraryEntry(nullptr, "name"), nullptr);
}

TEST_F(LanguageLibrary, HasOnlyTheEntriesItExports)
{
    EXPECT_EQ(FindLibraryEntry(m_library, "no_such_entry"), nullptr);
}
