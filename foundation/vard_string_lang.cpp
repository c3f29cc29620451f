#include "foundation/vard_string_lang.h"

namespace {
constexpr int kLanguagesPerModule = 11;
constexpr int kLastLanguage = 11;  // one more than a module has rows for; the table is asked all the same
constexpr int kLastModule = 29;
constexpr int kBufferSize = 5000;  // bytes of a loaded text with its NUL
constexpr char const * kMainProgram = "MODULEEXE";

// The first row of a module and language; -1 if there is none.
int FindRow(int module, int language)
{
    for (int row = 0; row < CVARDStringLang::kRows; ++row) {
        TSFSLRcDLLSpecify const & item = CVARDStringLang::g_FShInstLangDLL[row];
        if (item.module == module && item.language == language)
            return row;
    }
    return -1;
}

int RowOf(TSFSLRcDLLSpecify const & item)
{
    if (item.kind != 0 && item.module >= 1 && item.module <= kLastModule)
        return item.module * kLanguagesPerModule + item.language;
    return item.kind == 0 && item.module == 0 ? item.language : -1;
}
}  // namespace

TSFSLRcDLLSpecify CVARDStringLang::g_FShInstLangDLL[kRows];
int CVARDStringLang::g_typeDefLangGUI = -1;

CVARDStringLang::CVARDStringLang(int language, int module)
{
    SetLanguage(language, module);
}

CVARDStringLang::CVARDStringLang(int language, int module, CVARDStringLang const & text)
    : CVARDStringLang(language, module)
{
    m_text = text.m_text;
}

CVARDStringLang::CVARDStringLang(int language, int module, char const * text)
    : CVARDStringLang(language, module)
{
    auto const value = reinterpret_cast<std::uintptr_t>(text);
    constexpr std::uintptr_t kFirstAddress = 0x10000;  // values below are ids
    if (value != 0 && value < kFirstAddress)
        LoadStringA(static_cast<unsigned int>(value));
    else
        m_text = text;
}

CVARDStringLang::CVARDStringLang(int language, int module, unsigned short const * text)
    : CVARDStringLang(language, module)
{
    m_text = CVARDString(text).GetCS();
}

CVARDStringLang::CVARDStringLang(CVARDStringLang const & other)
    : CVARDString(other), m_library(other.m_library), m_row(other.m_row)
{
}

CVARDStringLang::~CVARDStringLang()
{
    SetLanguage(-1, 0);
}

CVARDStringLang & CVARDStringLang::operator=(CVARDStringLang const & other)
{
    m_text = other.m_text;
    m_row = other.m_row;
    return *this;
}

CVARDStringLang & CVARDStringLang::operator=(char character)
{
    CVARDString::operator=(character);
    return *this;
}

CVARDStringLang & CVARDStringLang::operator=(unsigned char const * text)
{
    CVARDString::operator=(text);
    return *this;
}

CVARDStringLang & CVARDStringLang::operator=(char const * text)
{
    CVARDString::operator=(text);
    return *this;
}

int CVARDStringLang::GetGUILanguage()
{
    return g_typeDefLangGUI < 0 ? 0 : g_typeDefLangGUI;
}

int CVARDStringLang::SetGUILanguage(int language, int)
{
    if (g_typeDefLangGUI < 0)
        g_typeDefLangGUI = language;
    return 1;
}

int CVARDStringLang::SetLanguage(int language, int module)
{
    if (language > kLastLanguage || language < -1)
        return 0;
    LetGo();
    m_row = FindRow(module, language);
    if (m_row < 0)
        m_row = FindRow(module, GetGUILanguage());
    if (m_row < 0)
        m_row = 0;
    TSFSLRcDLLSpecify & row = Row();
    m_library = row.library;
    // Without a language the row's library is taken as it is, uncounted, and counts as held when it is let
    // go.
    if (language < 0)
        return 1;
    if (!m_library && !row.file.IsEmpty() && row.file != kMainProgram) {
        m_library = AfxLoadLibrary(row.file);
        if (!m_library)
            return 0;
        row.library = m_library;
        row.uses = 0;
    }
    if (m_library && !row.file.IsEmpty())
        ++row.uses;
    return m_library != nullptr;
}

int CVARDStringLang::LoadStringA(unsigned int id)
{
    CString text;
    if (HasLibrary() && text.LoadString(m_library, id)) {
        m_text = text.Left(kBufferSize - 1);
        return 1;
    }
    LoadStringApp(id);
    return 0;
}

int CVARDStringLang::LoadStringApp(unsigned int id)
{
    return m_text.LoadString(id) ? 1 : 0;
}

int CVARDStringLang::AddItem(TSFSLRcDLLSpecify const & item)
{
    int const row = RowOf(item);
    if (row < 0 || row >= kRows)
        return 0;
    g_FShInstLangDLL[row] = item;
    return 1;
}

int CVARDStringLang::IsLanguageAvailable(int language, int)
{
    return language >= 0 && language <= kLastLanguage && !g_FShInstLangDLL[language].file.IsEmpty();
}

// A copy may have let go of the library already, or the row may have been replaced.
bool CVARDStringLang::HasLibrary() const
{
    return m_library && m_row >= 0 && Row().library == m_library;
}

void CVARDStringLang::LetGo()
{
    if (HasLibrary()) {
        TSFSLRcDLLSpecify & row = Row();
        --row.uses;
        if (row.uses == 0 && row.file != kMainProgram) {
            AfxFreeLibrary(row.library);
            row.library = nullptr;
        }
    }
    m_library = nullptr;
}
