#ifndef KX7_PLATFORM_BASE_STRING_H
#define KX7_PLATFORM_BASE_STRING_H

#include <compare>
#include <cstdarg>
#include <memory>
#include <string>
#include <string_view>

#include "platform/base/export.h"
#include "platform/base/types.h"

/// A text of bytes in code page 1250. Copies share their bytes until one of them is changed, so copying is
/// cheap. Lengths and positions count bytes; a NUL byte inside the text counts like any other, except where a
/// `char const *` is taken or given. A null pointer counts as an empty text everywhere.
class KX7_API CString
{
  public:
    CString() noexcept = default;
    CString(CString const &) noexcept = default;
    CString(CString &&) noexcept = default;

    /// The bytes up to the NUL. A value below 0x10000 in place of a pointer is the id of a string resource,
    /// whose text is taken; no text if there is none.
    CString(char const * text);

    CString(char const * text, int length);   ///< `length` bytes; none for a length below 1.
    CString(char character, int repeat = 1);  ///< The character `repeat` times.
    explicit CString(std::string_view text);  ///< All bytes of the view.

    CString & operator=(CString const &) noexcept = default;
    CString & operator=(CString &&) noexcept = default;
    CString & operator=(char const * text);
    CString & operator=(char character);

    /// Takes the bytes, into the memory that the text has if no copy shares it.
    void Assign(std::string_view text)
    {
        if (m_text && m_text.use_count() == 1)
            m_text->assign(text);
        else
            m_text = std::make_shared<std::string>(text);
    }

    /// The bytes, ended by a NUL; valid until this text is changed or, if no copy shares it, destroyed.
    operator char const *() const noexcept { return m_text ? m_text->c_str() : ""; }

    /// The bytes with their length; valid as long as the pointer.
    std::string_view View() const noexcept { return m_text ? std::string_view(*m_text) : std::string_view(); }

    int GetLength() const noexcept { return static_cast<int>(View().size()); }
    bool IsEmpty() const noexcept { return View().empty(); }
    void Empty() noexcept { m_text.reset(); }

    /// The byte at an index from 0; NUL outside of the text.
    char GetAt(int index) const noexcept;
    char operator[](int index) const noexcept { return GetAt(index); }

    /// Replaces the byte at an index; an index outside of the text changes nothing.
    void SetAt(int index, char character);

    CString & operator+=(CString const & text) { return Append(text.View()); }
    CString & operator+=(char const * text);
    CString & operator+=(char character) { return Append({&character, 1}); }

    /// Below 0, 0 or above 0 as this text stands before, equals or stands behind the other by byte values.
    int Compare(char const * other) const noexcept;

    /// Compare without regard to the case of letters of code page 1250.
    int CompareNoCase(char const * other) const noexcept;

    /// Parts of the text; positions and counts outside of it are cut to what there is.
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Left(int count) const;
    CString Right(int count) const;

    /// Change the case of the letters of code page 1250 in place.
    void MakeUpper();
    void MakeLower();

    /// Take white space (space, tab, line feed, vertical tab, form feed, carriage return) off an end, or the
    /// given character, or any character of the given text.
    void TrimLeft() { TrimLeft(kWhiteSpace); }
    void TrimLeft(char character) { TrimLeftOf({&character, 1}); }
    void TrimLeft(char const * characters);
    void TrimRight() { TrimRight(kWhiteSpace); }
    void TrimRight(char character) { TrimRightOf({&character, 1}); }
    void TrimRight(char const * characters);

    /// Index of the first match at or behind `start`; -1 if there is none.
    int Find(char character, int start = 0) const noexcept;
    int Find(char const * part, int start = 0) const noexcept;

    /// Index of the last such character; -1 if there is none.
    int ReverseFind(char character) const noexcept;

    /// Index of the first character that is one of the given ones; -1 if there is none.
    int FindOneOf(char const * characters) const noexcept;

    /// Put a character or text in front of the byte at `index` (below 0: at the start; beyond the end: at the
    /// end). The result is the new length.
    int Insert(int index, char character);
    int Insert(int index, char const * text);

    /// Deletes up to `count` bytes from `index` on. The result is the new length.
    int Delete(int index, int count = 1);

    /// Deletes every such character. The result is their number.
    int Remove(char character);

    /// Replaces every such character or part, from the left and without overlap; an empty part matches
    /// nothing. The result is the number of replacements.
    int Replace(char find, char put);
    int Replace(char const * find, char const * put);

    /// Sets the text as printf would print it. The arguments may include this text's own bytes. The text
    /// becomes empty if the format can't be printed.
    void Format(char const * format, ...) KX7_PRINTF(2, 3);
    void FormatV(char const * format, va_list arguments) KX7_PRINTF(2, 0);

    /// Takes the string resource of the id, found as resource_module.h tells, or the one of the given module,
    /// or the one of the given module and language (the system's language id). FALSE, and no text, if there
    /// is none.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);
    BOOL LoadString(HINSTANCE module, UINT id, WORD language);

    /// A writable buffer of this text's own with room for at least `minimumLength` bytes and a NUL. After a
    /// change, ReleaseBuffer sets the length before anything else is done with the text.
    char * GetBuffer(int minimumLength);

    /// A writable buffer of exactly `length` bytes and a NUL; ReleaseBuffer need not follow.
    char * GetBufferSetLength(int length);

    /// Ends the use of a buffer: the text has the given length, or up to its first NUL for -1.
    void ReleaseBuffer(int length = -1);

    friend bool operator==(CString const & a, CString const & b) noexcept { return a.View() == b.View(); }
    friend bool operator==(CString const & a, char const * b) noexcept { return a.Compare(b) == 0; }
    friend std::strong_ordering operator<=>(CString const & a, CString const & b) noexcept
    {
        return a.View() <=> b.View();
    }
    friend std::strong_ordering operator<=>(CString const & a, char const * b) noexcept
    {
        return a.Compare(b) <=> 0;
    }

    friend CString operator+(CString a, CString const & b) { return std::move(a += b); }
    friend CString operator+(CString a, char const * b) { return std::move(a += b); }
    friend CString operator+(CString a, char b) { return std::move(a += b); }
    friend CString operator+(char const * a, CString const & b) { return CString(a) + b; }
    friend CString operator+(char a, CString const & b) { return CString(a) + b; }

  private:
    static constexpr char const * kWhiteSpace = " \t\n\v\f\r";

    std::string & Own();
    CString & Append(std::string_view text);
    void TrimLeftOf(std::string_view characters);
    void TrimRightOf(std::string_view characters);

    std::shared_ptr<std::string> m_text;  // null for an empty text that has no buffer
};

#endif
