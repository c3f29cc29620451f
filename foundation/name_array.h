#ifndef KX7_FOUNDATION_NAME_ARRAY_H
#define KX7_FOUNDATION_NAME_ARRAY_H

#include <cstdint>
#include <string_view>

#include "foundation/name.h"
#include "platform/base/archive.h"
#include "platform/base/array.h"

class CComboBox;
class CListBox;

/// The table of all names of one kind, sorted by text (byte by byte), then by number. Each name gets a handle
/// when it is added: the index of an entry that holds the name's position. Handles are given in order of
/// adding and stay valid when other names are added; a deleted name keeps its place in the table, and its
/// handle a mark, until a compression.
///
/// Marks aren't shifted when names are added in front of them, so after such an addition a mark stands for
/// the name that has come to its position: compress before adding.
class KX7_API CNameArr
{
  public:
    CNameArr();
    virtual ~CNameArr() = default;
    CNameArr(CNameArr const &) = delete;
    CNameArr & operator=(CNameArr const &) = delete;

    // Adding (name_array_add.cpp).

    /// Enters a name and returns its handle. If the table has the name, the number behind the last one of its
    /// text is entered instead (2 if that has none): gaps aren't filled. Otherwise the `count` numbers from
    /// the name's on have to be free before the next higher one; if they aren't, or no number is left, the
    /// result is -1 and nothing changes. One name is entered whatever `count` is. `name` comes back as it was
    /// entered, and it becomes the actual name.
    int AddName(TSName & name, int count);

    /// The same for a text, split as CName::SetNameStr does with a long text cut; -1 for an empty text.
    int AddName(CString & text, int count);

    /// Enters the actual name at the next position, both as AddName or IsFeeName left them, and moves both
    /// on, without looking at what stands there: the caller knows that the numbers are free. Returns the new
    /// handle. -1 if the next position can't be used: it is negative, or beyond the end of the table. Right
    /// after AddName the actual name is the one just entered, which so is entered twice.
    int AddNameDirect();

    /// Whether `count` names from `name` on can be entered. If so, the name becomes the actual one and the
    /// result is the position at which AddNameDirect will enter it. Otherwise -1 if the table has the name,
    /// and -100 or less if a later name stands in the way, -(its position + 100).
    int IsFeeName(TSName name, int count);

    /// Changes `text` to the name at which a run of `count` free numbers begins, at its own number or behind
    /// it; leaves it if the table has no name with its text part. Always 1. A text without a number begins
    /// behind an entry without one at 0.
    int GetFirstFreeNameStr(CString & text, int count);

    // Looking up (name_array.cpp).

    /// The position of a name; -1 if the table doesn't have it.
    int FindName(TSName name) const;
    int FindName(CString text) const;

    /// The name of a live handle, and 1. Otherwise 0, and `name` becomes an empty text without number.
    int GetNameBySort(int handle, TSName & name) const;

    /// The position of a live handle, and 1; otherwise 0, and `position` stays as it was. A handle is live if
    /// its position is in the table.
    int GetNameBySort(int handle, int & position) const;

    /// The name of a live handle as text; otherwise empty text.
    CString GetNameStrBySort(int handle) const;

    /// The name at a position, and 1 (or its text); 0 (or empty text) for a position that isn't in the table,
    /// and `name` stays as it was.
    int GetNameByPos(int position, TSName & name) const;
    CString GetNameStrByPos(int position) const;

    CString GetActNameStr() const { return m_actualName.GetNameStr(); }

    /// Sets the actual name, cut if it is long; an empty text changes nothing.
    void SetActNameStr(CString text) { m_actualName.SetNameStr(text, 1); }

    /// Fills a box with all names in table order and returns 1; an empty table empties the box and gives 0.
    /// In a combo box, for each index below the number of names that is a live handle, the item at that
    /// handle's position gets the handle as its data.
    int SetListBox(CListBox & box) const;
    int SetComboBox(CComboBox & box) const;

    // Deleting (name_array_delete.cpp).

    /// Marks the name of a live handle as deleted and returns 1; otherwise 0. The name stays in the table.
    int DeleteNameBySort(int handle);

    /// Takes the mark off and returns 1; 0 if the handle has none or its position isn't in the table any
    /// more.
    int UnDeleteNameBySort(int handle);

    /// Removes the name at a position at once and returns 1; 0 if there is none. Handles aren't changed.
    int DeleteNameByPos(int position);

    /// Removes the names that are marked as deleted; their handles are dead for good, and the others go on
    /// standing for their names. Always 1.
    int NameArrayCompress();

    /// Removes all names and handles. Always 1.
    int NameFullCompress();

    // The whole table (name_array_store.cpp).

    /// Copies the names and handles of another table (a CNameArr *) to this one, or of this one to the other;
    /// 1, or 0 for null.
    int SetNameArr(void * other);
    int GetNameArr(void * other) const;

    /// Does nothing.
    void SetAtGrow(int index, TSName name);

    /// Writes the table as a raw block and returns 1; for an empty table, a block that says so and 0, which
    /// isn't a failure. Numbers are 32 bits, lowest byte first:
    ///  - "ARRAYNAMES  ", 13 bytes with its NUL; "NOARRAYNAMES" for an empty table, and nothing follows;
    ///  - 20, a mark of the block's version;
    ///  - the actual name and the work name, 24 bytes each: four bytes without meaning, the length 10, the
    ///  name;
    ///  - the number of names, and the names as records of 16 bytes;
    ///  - the number of handles, and the handles' values.
    int WriteElements(CArchive & archive) const;

    /// Reads what WriteElements wrote. A block for an empty table returns 1 and changes nothing. 0, and
    /// nothing changed, for any other start, another version mark, a negative number of names, and a block
    /// that ends early. No handles in the block leave the handles as they are, and the next position stays in
    /// any case.
    int ReadElements(CArchive & archive);

  protected:
    /// Looks for a name. The result is its position if the table has it, and then `position` is -1. Otherwise
    /// the result is -1 and `position` is where it can be inserted, or -(index + 100) if the name at `index`,
    /// of the same text, has one of the `count` numbers from the sought one on. The name goes into the work
    /// name.
    int FindName(TSName name, int & position, int count);

  private:
    int InsertName(TSName const & name, int position);
    int CountBefore(std::string_view text, std::int32_t number) const;
    bool MoveBehindLast(TSName & name, int & position) const;
    bool IsInTable(int position) const { return position >= 0 && position < m_names.GetSize(); }
    int MarkDeletedNames();

    CArray<TSName, TSName> m_names;
    std::int32_t m_nextPosition = 0;
    CName m_actualName;
    CName m_workName;
    CArray<std::int32_t, std::int32_t> m_handles;
    bool m_isInOrder = true;  // false after AddNameDirect at a wrong place, or from a file
};

#endif
