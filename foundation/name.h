#ifndef KX7_FOUNDATION_NAME_H
#define KX7_FOUNDATION_NAME_H

#include <cstdint>

#include "platform/base/string.h"

/// The record of a name, stored raw in files.
struct TSName
{
    char text[12];        ///< Ended by a NUL; at most 10 characters are used.
    std::int32_t number;  ///< -1 means no number.
};
static_assert(sizeof(TSName) == 16);

/// A name of the form text plus running number, as "LC12". A number below -1 counts as -1 on entry; a number
/// that is the highest of its type isn't moved on.
class KX7_API CName
{
  public:
    /// No text and the number 0, so it reads "0" until a name is set.
    CName() = default;
    CName(CName const &) = default;
    CName & operator=(CName const &) = default;
    virtual ~CName() = default;

    /// The text, then the number in decimal if there is one.
    CString GetNameStr() const;

    /// Splits a text at its trailing digits; without any there is no number, and digits only give an empty
    /// text part. A number beyond the range counts as its highest. Returns 1; 0 for an empty text and, if
    /// `cut` is 0, for a text part above 10 bytes, which otherwise is cut. On that second failure the number
    /// has already been taken over and the text part hasn't.
    int SetNameStr(CString text, int cut);

    TSName GetName() const { return m_name; }

    /// Takes the record over; always 1.
    int SetName(TSName name);

    /// Moves the name on and returns it: a number is raised by 1, no number becomes 2.
    TSName GetNextName();

    /// Sets the name, then moves it on.
    TSName GetNextName(TSName name);

    /// Moves the name on and returns its text.
    CString GetNextNameStr();

    /// Sets the name as SetNameStr does, then moves it on; empty text if it can't be set.
    CString GetNextNameStr(CString text, int cut);

    /// 1 if the text part, without its blanks, isn't empty and has none of the characters * " , ' ! and
    /// backslash. The number isn't looked at.
    int IsNameValid() const;

    /// Sets the name, cut if it is long, and tells whether it is valid; 0 if it can't be set.
    int IsNameValid(CString text);

  protected:
    /// A text by which names sort by number: the text part, then the number, if there is one, padded in front
    /// with blanks up to 10 characters.
    CString GetNameKey() const;

    /// Sets the name as SetNameStr does, then as above; empty text if it can't be set.
    CString GetNameKey(CString text, int cut);

    /// Sets the name. The result is always the empty text: callers know it so.
    CString GetNameKey(TSName name);

  private:
    std::int32_t m_maximumLength = 10;
    TSName m_name{};
};

#endif
