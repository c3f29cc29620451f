#ifndef KX7_FOUNDATION_VARD_STRING_H
#define KX7_FOUNDATION_VARD_STRING_H

#include <ctime>

#include "platform/base/string.h"

/// The text value of the suite: bytes in code page 1250 that can be copied, trimmed, masked, dated and turned
/// into and out of numbers. Positions count bytes from 0.
///
/// An operation that returns a text leaves the object alone unless its last integer argument, the in-place
/// flag, is exactly 1; then the object takes the result as well. The result is returned in both cases.
class KX7_API CVARDString
{
  public:
    /// An empty text.
    CVARDString() {}

    /// Copies the text alone: the time isn't copied and the locale language id becomes 0.
    CVARDString(CVARDString const & other);

    /// Copies the text. A value that isn't null and lies below 0x10000 isn't a pointer but the id of a string
    /// resource, which is loaded. Null gives an empty text.
    CVARDString(char const * text);

    /// Converts UTF-16 text, ended by a zero, to code page 1250. Null gives an empty text.
    CVARDString(unsigned short const * text);

    virtual ~CVARDString() = default;

    // Assignment replaces the text alone; time and locale language id stay.
    CVARDString & operator=(CVARDString const & other);
    CVARDString & operator=(char character);
    CVARDString & operator=(unsigned char const * text);
    CVARDString & operator=(char const * text);

    /// The bytes of the text, ended by a NUL; valid until the text changes.
    operator char const *() const { return m_text; }
    char const * GetChars() const { return m_text; }

    /// A copy of the text.
    CString GetCS() const { return m_text; }

    // Numbers and their text (vard_string_number.cpp).

    /// The text of a number, the one way in which the suite shows numbers.
    ///
    /// `width` is the longest text in bytes, the plus sign that isn't shown included for values of 1 and
    /// more; -1 means free width, which is at most 15 bytes of fixed form. `decimals` -1 means 3. The text is
    /// never padded.
    /// - Fixed form with all its decimals, as long as it fits and, for values below 1 in magnitude, the first
    ///   digit that isn't 0 is the first or second decimal. So a value that isn't 0 never shows as 0.
    /// - Otherwise exponent form with an exponent of two digits and as many decimals as the width has room
    /// for;
    ///   with free width its trailing zeros are taken off, and the last decimal in any case, unrounded.
    /// - Asterisks in the full width if the exponent needs three digits or the text is too long.
    /// A width above 127 counts as 127 and a width below -1 as 0; decimals above 124 count as 124, and below
    /// -1 as 6. Infinite values and NaN give "inf" and "nan" with their minus sign.
    CVARDString Str(double value, int width = -1, int decimals = -1, int inPlace = 0);

    /// As Str, but a magnitude below 1e-14 counts as exactly 0.
    CVARDString StrPoint(double value, int width = -1, int decimals = -1, int inPlace = 0);

    /// The integer in decimal. `width` changes nothing: the digits are never cut.
    CVARDString Str(int value, int width = -1, int inPlace = 0);

    /// The text as an integer as the C library's atoi reads it; -9999 if IsInteger is 0. A number beyond the
    /// range of the type becomes its nearest limit, here and in ToLong.
    int ToInt() const;

    /// The text as an integer as atol reads it, with no test.
    long ToLong() const;

    /// The text as a number as atof reads it, with no test; the decimal sign is always the point.
    double ToDouble() const;

    /// 1 if each byte is a decimal digit, "+" or "-", wherever it stands (so also for the empty text and for
    /// "1-2"), otherwise 0.
    int IsInteger() const;

    /// Splits a number off the end of the text. The result is the number, or 1 if there are no trailing
    /// digits or they don't fit into an int; `prefix` gets what stands before them. The first byte of the
    /// text always belongs to the prefix: "123" gives 23 and "1". An empty text gives -1 and an empty prefix.
    int GetNumInString(CString & prefix) const;

    /// Exactly `length` bytes (none for a negative length): a longer text keeps its first bytes, a shorter
    /// one gets blanks in front or behind.
    CVARDString FillSpacesLeft(int length, int inPlace);
    CVARDString FillSpacesRight(int length, int inPlace);

    /// Makes the text the one character.
    void Char(unsigned char character);

    /// The byte at a position; 0 for a position outside the text.
    unsigned char Ord(int position) const;

    /// The text without any blank, inside or at the ends. Tabs and line ends stay.
    CString TrimAll(int inPlace);

    // Records of a text, divided by a separator (vard_string_records.cpp).

    /// `count` bytes from `first`; a negative `count` means up to the end. The object takes the result for
    /// any in-place flag but 0.
    CVARDString Copy(int first, int count, int inPlace);

    /// `count` records from the record `first` on, counted from 1, with the separators between them and none
    /// at the end. Empty for a `first` that isn't there; a `count` past the end is cut. The object takes the
    /// result for any in-place flag but 0.
    CVARDString CopyLine(int first, int count, int inPlace, CString separator);

    /// The number of records: the separators, plus 1 if the text doesn't end in one. So an empty text has one
    /// record, and so has every text for an empty separator.
    int LineCnt(CString separator) const;

    /// The record `n`, counted from 1; empty if `n` is beyond the number of lines. That number is
    /// deliberately taken with the line end as separator, whatever `separator` is.
    CString GetSubString(int n, CString const & separator) const;

    // Pieces of a text (vard_string_pieces.cpp).

    /// Replaces each `find` at the start (LeadChar) or the end (TrailChar) of the text by `put`, as far as
    /// they follow one another, for instance leading blanks by zeros. Nothing happens if the two are equal or
    /// `find` is empty.
    CVARDString LeadChar(int inPlace, CString find, CString put);
    CVARDString LeadCharEx(int inPlace, CString const & find, CString const & put);
    CVARDString TrailChar(int inPlace, CString find, CString put);
    CVARDString TrailCharEx(int inPlace, CString const & find, CString const & put);

    /// Pads the text with blanks in front up to `width` (not if it is negative), then replaces every `find`
    /// by `put` from the left. With `caseMatters` 0 letters are compared without case. An empty `find` only
    /// pads.
    CVARDString Replace(int inPlace, CString find, CString put, int width, int caseMatters);
    CVARDString ReplaceEx(int inPlace, CString const & find, CString const & put, int width, int caseMatters);

    /// The text before the first `stop` without its last `offset` bytes. The whole text, whatever `offset`
    /// is, for a `stop` that is empty or isn't found.
    CVARDString GetTextBefore(CVARDString stop, int offset) const;

    /// The text behind the first `stop` without its first `offset` bytes. The whole text for an empty `stop`,
    /// but nothing for one that isn't found, deliberately unlike GetTextBefore.
    CVARDString GetTextAfter(CVARDString stop, int offset) const;

    /// The text between the first and the last `mark`. With a single one nothing or, if `toEnd` isn't 0, all
    /// that follows it.
    CVARDString GetTextInChars(char mark, int toEnd) const;

    /// Finds a quoted text from `start` on: the positions of its opening and closing double quote, each -1 if
    /// it isn't there. Inside, two quotes in a row stand for one. Either pointer may be null. Always 1.
    int GetTextInQuotes(int start, int * first, int * last, int unused) const;

    // Letters and hot keys (vard_string_letters.cpp).

    /// The text in capital or small letters of code page 1250.
    CVARDString UpCase(int inPlace);
    CVARDString LowCase(int inPlace);

    /// The text with the letters of the suite's languages without their marks: "Čáp" gives "Cap".
    CVARDString NoDiacritic(int inPlace);

    /// The string resource `id` made comparable: without blanks around, in capitals, without marks.
    CString GetCommand(unsigned int id, int inPlace);

    /// The caption without its hot keys: between the first "<" and the first ">" behind it the "&" marks are
    /// taken out, the letters marked by them become capitals and all others small. Without brackets the text
    /// as it is.
    CString GetStrWithoutHotKey(int inPlace);

    /// The number, from 1, of the marked letter that equals `key` in capitals; -1 if there is none.
    int GetHotKeyNumber(char key) const;

    // Masks (vard_string_masks.cpp).

    /// 1 if the text matches `mask`: "?" stands for one byte, "@" for a decimal digit, "*" for any run of
    /// bytes. The mask may match anywhere in the text and needn't reach its end. An empty mask or text never
    /// matches.
    ///
    /// Letters of `options`, in either case: L the whole text equals the mask (0 for a mask with a wild card,
    /// even against that very text); W each word between " ,.\t\n" is tried by itself; C case doesn't matter;
    /// D marks on letters don't matter.
    int Equmask(CString mask, CString options) const;

    /// 1 if the text matches one of the masks that `separator` divides.
    int EquMultimask(CString masks, CString options, CString separator) const;

    /// 1 if the text begins as the mask says: "#" wants a decimal digit, any other byte itself. 0 for an
    /// empty mask.
    int EquNummask(CString mask) const;

    // Dates (vard_string_dates.cpp).

    /// Sets the time to the present local time.
    void CurrTime();

    /// Sets the time, the second form to that of the other object.
    void SetTime(std::tm const & time);
    void SetTime(CVARDString const & other);

    /// Changes nothing; hosts call it.
    void SetTime(CString date, CString time);

    /// The time as text: tokens of `format` ("DD.MM.YY hh:mm:ss" if it is empty) are replaced one kind after
    /// the other, each in all its places, in this order: YYYY, YY year; MMM, MM, sM, lM, M month
    /// (blank-padded, zero-padded, short name, long name, plain); DDD, DD, D day; hh, mm, ss; www, ww short
    /// names of the weekday; w its number with Sunday 0. Letters of a name put in can be taken for a later
    /// token: callers know.
    ///
    /// `tables` holds a month table and a day table divided by an empty line; empty for the Czech ones.
    /// Records are lines of fields that each end in "|": number, short name, long name; the day table begins
    /// with Sunday.
    CVARDString StrDate(CString format, CString tables, int inPlace);

    // File names (vard_string_files.cpp).

    /// A path shortened for display to about `maxLength` bytes: its first three bytes, three dots, and its
    /// last levels (or bytes). A text shorter than `maxLength` stays. The object takes the result for any
    /// flag but 0.
    CString CutDirectory(int maxLength, int inPlace);

    /// A file name for a copy of `name` that `directory` doesn't have yet: the base up to its first digit,
    /// with a counter of three digits from 001 if the plain name is taken, and the extension.
    CString GetCloneFileName(CString directory, CString name) const;

    /// Sets the language in which LoadStringLang loads, a system language id.
    void SetLocaleLandID(unsigned long id) { m_localeLanguage = static_cast<unsigned int>(id); }

    /// Loads string `id` in a language, a system language id such as 0x0405 for Czech, straight from the
    /// string resources of the current module, into `buffer` of `size` bytes. Returns the bytes of the text
    /// without its NUL; 0 with an empty text if it isn't there.
    int LoadStringLangA(unsigned int id, unsigned long language, char * buffer, int size) const;

    /// The same as text, at most 4999 bytes; the locale language id takes the place of a `language` 0. The
    /// object takes the text as well, in any case.
    CString LoadStringLang(unsigned int id, unsigned long language);

  protected:
    /// 1 if a single word matches a mask; with `literal` not 0 they must be equal.
    int EqumaskWord(CString const & word, CString const & mask, int literal) const;

    /// Ends an operation: the object takes the result if `inPlace` is exactly 1.
    CVARDString Finish(CString const & result, int inPlace);

    CString m_text;
    std::tm m_time;                     ///< Valid after it was set; a constructor leaves it alone.
    unsigned int m_localeLanguage = 0;  ///< Language of strings loaded from resources.
};

#endif
