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

  protected:
    /// Ends an operation: the object takes the result if `inPlace` is exactly 1.
    CVARDString Finish(CString const & result, int inPlace);

    CString m_text;
    std::tm m_time;                     ///< Valid after it was set; a constructor leaves it alone.
    unsigned int m_localeLanguage = 0;  ///< Language of strings loaded from resources.
};

#endif
