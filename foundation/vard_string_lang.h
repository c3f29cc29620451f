#ifndef KX7_FOUNDATION_VARD_STRING_LANG_H
#define KX7_FOUNDATION_VARD_STRING_LANG_H

#include "foundation/vard_string.h"
#include "platform/base/resource_module.h"

/// One row of the process-wide table of language libraries.
struct TSFSLRcDLLSpecify
{
    int kind = 0;                 ///< 0 for the rows of the main module.
    int module = 0;               ///< Number of the program module, 0 to 29.
    int language = 0;             ///< As ELanguages.
    HINSTANCE library = nullptr;  ///< The loaded library; null while it isn't loaded.
    int uses = 0;                 ///< How many objects hold the library.
    CString file;  ///< The library's file; "MODULEEXE" for texts in the main program, which is never
                   ///< loaded or freed.
};

/// A text loaded from the language library of a chosen language and program module, so that printed output
/// can be in another language than the screen. All strings share the libraries, each of which stays loaded
/// while a string holds it.
class KX7_API CVARDStringLang : public CVARDString
{
  public:
    /// Rows of the table: 30 modules of 11 languages, and one more that AddItem's bound lets through.
    static constexpr int kRows = 331;

    /// An empty text in a language; SetLanguage says what -1 and a language without a library mean.
    explicit CVARDStringLang(int language = -1, int module = 0);

    /// Copies the text.
    CVARDStringLang(int language, int module, CVARDStringLang const & text);

    /// Copies the text, or loads the string of that id if the value is below 0x10000 (LoadStringA).
    CVARDStringLang(int language, int module, char const * text);

    /// Converts UTF-16 text.
    CVARDStringLang(int language, int module, unsigned short const * text);

    /// Copies text, library and row. Deliberately doesn't count as another holder of the library: the library
    /// goes with the first of the two that lets go, and the other then loads from the current module.
    CVARDStringLang(CVARDStringLang const & other);

    /// Lets go of the library.
    ~CVARDStringLang() override;

    /// Takes the text and the row of the other object; the library stays.
    CVARDStringLang & operator=(CVARDStringLang const & other);

    // These take the text alone.
    CVARDStringLang & operator=(char character);
    CVARDStringLang & operator=(unsigned char const * text);
    CVARDStringLang & operator=(char const * text);

    /// The language of the screen; 0 before it is set.
    static int GetGUILanguage();

    /// Sets it, the first time only. Always 1.
    static int SetGUILanguage(int language, int unused);

    /// Lets go of the present library and takes that of a language (0 to 11) and module; without a row for it
    /// that of the screen's language, then the first row. -1 loads nothing: the row's library is taken only
    /// if it is there already, and without counting. 1 if the object has a library afterwards (for -1
    /// always); 0 for a language outside -1 to 11 (nothing changed) or a library that can't be loaded.
    int SetLanguage(int language, int module);

    /// Loads a string from the library: 1. Without a library, or if the library doesn't have it, from the
    /// current module: 0.
    int LoadStringA(unsigned int id);

    /// Loads a string from the current module, whatever the library. 1 if it is there.
    int LoadStringApp(unsigned int id);

    /// Puts a row into the table: at module * 11 + language for a kind that isn't 0 with a module 1 to 29, at
    /// the language for kind and module 0. 1; 0 for any other item and for a row outside 0 to 330.
    static int AddItem(TSFSLRcDLLSpecify const & item);

    /// 1 if the main module has a file for the language, 0 to 11.
    static int IsLanguageAvailable(int language, int unused);

    static TSFSLRcDLLSpecify g_FShInstLangDLL[kRows];  ///< The table.
    static int g_typeDefLangGUI;                       ///< Language of the screen; -1 until it is set.

  private:
    TSFSLRcDLLSpecify & Row() const { return g_FShInstLangDLL[m_row]; }
    bool HasLibrary() const;
    void LetGo();

    HINSTANCE m_library = nullptr;
    int m_row = -1;
};

#endif
