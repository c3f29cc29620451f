#include "foundation/vard_string_lang.h"

#include <gtest/gtest.h>

#include <string>

#include "foundation/languages.h"
#include "platform/base/code_page.h"
#include "test_paths.h"

namespace {
constexpr unsigned int kIntegral = 55009;
constexpr unsigned int kSemicolon = 55019;
constexpr unsigned int kUnknown = 1;

CString LibraryFile(char const * name)
{
#if defined(_WIN32)
    return CString(kBuildDir) + "/bin/" + name + ".dll";
#else
    return CString(kBuildDir) + "/bin/" + name + ".so";
#endif
}

// The table with Czech in the main program, English and German in their libraries.
class LanguageStrings : public testing::Test
{
  protected:
    void SetUp() override
    {
        for (TSFSLRcDLLSpecify & row : CVARDStringLang::g_FShInstLangDLL)
            row = {};
        CVARDStringLang::g_typeDefLangGUI = -1;
        Add(0, 0, CZECH, "MODULEEXE");
        Add(0, 0, ENGLISH, LibraryFile("KX7UtltEnglish"));
        Add(0, 0, GERMANY, LibraryFile("KX7UtltGerman"));
    }

    void TearDown() override
    {
        for (TSFSLRcDLLSpecify & row : CVARDStringLang::g_FShInstLangDLL)
            row = {};
        CVARDStringLang::g_typeDefLangGUI = -1;
    }

    static int Add(int kind, int module, int language, CString const & file)
    {
        TSFSLRcDLLSpecify item;
        item.kind = kind;
        item.module = module;
        item.language = language;
        item.file = file;
        return CVARDStringLang::AddItem(item);
    }

    static TSFSLRcDLLSpecify & Row(int row) { return CVARDStringLang::g_FShInstLangDLL[row]; }
};

TEST_F(LanguageStrings, LoadFromTheLibraryOfTheirLanguage)
{
    CVARDStringLang english(ENGLISH), german(GERMANY);
    EXPECT_EQ(english.LoadStringA(kSemicolon), 1);
    EXPECT_EQ(english.GetCS(), "Semicolon");
    EXPECT_EQ(german.LoadStringA(kSemicolon), 1);
    EXPECT_EQ(german.GetCS(), "Semikolon");
    EXPECT_EQ(english.LoadStringApp(kSemicolon), 1);
    EXPECT_EQ(Utf8From1250(english.GetCS().View()), "Středník");
}

TEST_F(LanguageStrings, ShareALibraryUntilTheLastLetsGo)
{
    {
        CVARDStringLang first(ENGLISH);
        {
            CVARDStringLang second(ENGLISH);
            EXPECT_EQ(Row(ENGLISH).uses, 2);
        }
        EXPECT_EQ(Row(ENGLISH).uses, 1);
        EXPECT_NE(Row(ENGLISH).library, nullptr);
        EXPECT_EQ(first.LoadStringA(kIntegral), 1);
    }
    EXPECT_EQ(Row(ENGLISH).uses, 0);
    EXPECT_EQ(Row(ENGLISH).library, nullptr);
}

TEST_F(LanguageStrings, ChangeOfLanguageLetsGoOfTheOld)
{
    CVARDStringLang text(ENGLISH);
    EXPECT_EQ(text.SetLanguage(GERMANY, 0), 1);
    EXPECT_EQ(Row(ENGLISH).library, nullptr);
    EXPECT_EQ(Row(GERMANY).uses, 1);
    EXPECT_EQ(text.SetLanguage(-1, 0), 1);
    EXPECT_EQ(Row(GERMANY).library, nullptr);
}

TEST_F(LanguageStrings, MainProgramIsNeverLoaded)
{
    CVARDStringLang text(CZECH);
    EXPECT_EQ(Row(CZECH).library, nullptr);
    EXPECT_EQ(text.SetLanguage(CZECH, 0), 0);
    EXPECT_EQ(text.LoadStringA(kSemicolon), 0);
    EXPECT_EQ(Utf8From1250(text.GetCS().View()), "Středník");
}

TEST_F(LanguageStrings, LanguageOutsideTheRangeChangesNothing)
{
    CVARDStringLang text(ENGLISH);
    EXPECT_EQ(text.SetLanguage(12, 0), 0);
    EXPECT_EQ(text.SetLanguage(-2, 0), 0);
    EXPECT_EQ(Row(ENGLISH).uses, 1);
    EXPECT_EQ(text.LoadStringA(kIntegral), 1);
}

TEST_F(LanguageStrings, LanguageWithoutARowFallsBackToTheScreens)
{
    CVARDStringLang::SetGUILanguage(GERMANY, 0);
    CVARDStringLang text(HUNGARY);
    EXPECT_EQ(text.LoadStringA(kSemicolon), 1);
    EXPECT_EQ(text.GetCS(), "Semikolon");
}

TEST_F(LanguageStrings, ModuleWithoutRowsFallsBackToTheFirstRow)
{
    CVARDStringLang text(ENGLISH, 7);
    EXPECT_EQ(text.LoadStringA(kSemicolon), 0);
    EXPECT_EQ(Utf8From1250(text.GetCS().View()), "Středník");
}

TEST_F(LanguageStrings, ModulesHaveRowsOfTheirOwn)
{
    ASSERT_EQ(Add(1, 3, ENGLISH, LibraryFile("KX7UtltEnglish")), 1);
    CVARDStringLang text(ENGLISH, 3);
    EXPECT_EQ(Row(3 * 11 + ENGLISH).uses, 1);
    EXPECT_EQ(Row(ENGLISH).uses, 0);
    EXPECT_EQ(text.LoadStringA(kSemicolon), 1);
}

TEST_F(LanguageStrings, MissingLibraryFails)
{
    Add(0, 0, POLISH, "no such library");
    CVARDStringLang text;
    EXPECT_EQ(text.SetLanguage(POLISH, 0), 0);
    EXPECT_EQ(text.LoadStringA(kSemicolon), 0);
    EXPECT_FALSE(text.GetCS().IsEmpty());
}

TEST_F(LanguageStrings, IdMissingInTheLibraryComesFromTheCurrentModule)
{
    CVARDStringLang text(ENGLISH);
    EXPECT_EQ(text.LoadStringA(kUnknown), 0);
    EXPECT_EQ(text.GetCS(), "");
}

TEST_F(LanguageStrings, IdInPlaceOfAPointerIsLoaded)
{
    CVARDStringLang const text(ENGLISH, 0, reinterpret_cast<char const *>(kIntegral));
    EXPECT_EQ(text.GetCS(), "Integral");
    EXPECT_EQ(CVARDStringLang(ENGLISH, 0, "text").GetCS(), "text");
    EXPECT_EQ(CVARDStringLang(ENGLISH, 0, text).GetCS(), "Integral");
    unsigned short const wide[] = {'w', 0x0159, 0};
    EXPECT_EQ(CVARDStringLang(ENGLISH, 0, wide).GetCS(), "w\xF8");
}

TEST_F(LanguageStrings, CopyDoesNotCountAsAHolder)
{
    CVARDStringLang text(ENGLISH);
    {
        CVARDStringLang copy(text);
        EXPECT_EQ(Row(ENGLISH).uses, 1);
        EXPECT_EQ(copy.LoadStringA(kIntegral), 1);
    }
    // The copy let go of the library, so the first one is left with the current module.
    EXPECT_EQ(Row(ENGLISH).library, nullptr);
    EXPECT_EQ(text.LoadStringA(kSemicolon), 0);
    EXPECT_EQ(Utf8From1250(text.GetCS().View()), "Středník");
}

TEST_F(LanguageStrings, AssignmentTakesTheText)
{
    CVARDStringLang text(ENGLISH), other(ENGLISH, 0, "other");
    text = other;
    EXPECT_EQ(text.GetCS(), "other");
    text = 'c';
    EXPECT_EQ(text.GetCS(), "c");
    text = "plain";
    EXPECT_EQ(text.GetCS(), "plain");
    text = reinterpret_cast<unsigned char const *>("bytes");
    EXPECT_EQ(text.GetCS(), "bytes");
    EXPECT_EQ(text.LoadStringA(kIntegral), 1);
}

TEST_F(LanguageStrings, ScreensLanguageIsSetOnce)
{
    EXPECT_EQ(CVARDStringLang::GetGUILanguage(), 0);
    EXPECT_EQ(CVARDStringLang::SetGUILanguage(ENGLISH, 0), 1);
    EXPECT_EQ(CVARDStringLang::SetGUILanguage(GERMANY, 0), 1);
    EXPECT_EQ(CVARDStringLang::GetGUILanguage(), ENGLISH);
}

TEST_F(LanguageStrings, RowsAreRefusedOutsideTheTable)
{
    EXPECT_EQ(Add(1, 29, 10, "x"), 1);
    EXPECT_EQ(Row(29 * 11 + 10).file, "x");
    EXPECT_EQ(Add(1, 29, 11, "y"), 1);  // one row more than there are languages and modules
    EXPECT_EQ(Add(1, 29, 12, "x"), 0);
    EXPECT_EQ(Add(1, 30, 0, "x"), 0);
    EXPECT_EQ(Add(1, 0, 0, "x"), 0);
    EXPECT_EQ(Add(0, 1, 0, "x"), 0);
    EXPECT_EQ(Add(0, 0, -1, "x"), 0);
    EXPECT_EQ(Add(1, 1, -12, "x"), 0);
    EXPECT_EQ(Add(0, 0, 331, "x"), 0);
}

TEST_F(LanguageStrings, AvailableLanguagesHaveAFile)
{
    EXPECT_EQ(CVARDStringLang::IsLanguageAvailable(CZECH, 0), 1);
    EXPECT_EQ(CVARDStringLang::IsLanguageAvailable(ENGLISH, 0), 1);
    EXPECT_EQ(CVARDStringLang::IsLanguageAvailable(POLISH, 0), 0);
    for (int language : {-1, 12, 2147483647})
        EXPECT_EQ(CVARDStringLang::IsLanguageAvailable(language, 0), 0);
}

TEST(LoadStringOfLanguage, TakesTheTextOfThatLanguage)
{
    constexpr unsigned long kCzech = 0x0405, kGerman = 0x0407;
    CVARDString text("before");
    EXPECT_EQ(Utf8From1250(text.LoadStringLang(kSemicolon, kCzech).View()), "Středník");
    EXPECT_EQ(Utf8From1250(text.GetCS().View()), "Středník");
    EXPECT_EQ(text.LoadStringLang(kSemicolon, kGerman), "");
    text.SetLocaleLandID(kCzech);
    EXPECT_EQ(Utf8From1250(text.LoadStringLang(kSemicolon, 0).View()), "Středník");
    EXPECT_EQ(text.LoadStringLang(kUnknown, kCzech), "");
}

TEST(LoadStringOfLanguage, NeverOverrunsTheBuffer)
{
    char buffer[8] = "xxxxxxx";
    CVARDString text;
    EXPECT_EQ(text.LoadStringLangA(kSemicolon, 0x0405, buffer, 5), 4);
    EXPECT_EQ(std::string(buffer),
              "St\xF8"
              "e");
    EXPECT_EQ(buffer[5], 'x');
    EXPECT_EQ(text.LoadStringLangA(kSemicolon, 0x0405, buffer, 0), 0);
    EXPECT_EQ(text.LoadStringLangA(kSemicolon, 0x0405, nullptr, 8), 0);
    EXPECT_EQ(text.LoadStringLangA(kUnknown, 0x0405, buffer, 8), 0);
    EXPECT_EQ(std::string(buffer), "");
}

// Every id has its text in every language, and texts that are lists or formats keep their form.
TEST(LanguageLibraries, HaveTheSameIdsAndForms)
{
    for (char const * name : {"KX7UtltEnglish", "KX7UtltGerman"}) {
        HINSTANCE const library = AfxLoadLibrary(LibraryFile(name));
        ASSERT_NE(library, nullptr) << name;
        int count = 0;
        for (unsigned int id = 55000; id < 55400; ++id) {
            CString czech, translated;
            if (!czech.LoadString(id))
                continue;
            ++count;
            EXPECT_TRUE(translated.LoadString(library, id)) << name << " " << id;
            for (char form : {'\n', '|', '%', '_'}) {
                auto const countOf = [form](CString const & text) {
                    return std::count(text.View().begin(), text.View().end(), form);
                };
                EXPECT_EQ(countOf(translated), countOf(czech)) << name << " " << id << " " << form;
            }
        }
        EXPECT_GT(count, 50);
        AfxFreeLibrary(library);
    }
}
}  // namespace
