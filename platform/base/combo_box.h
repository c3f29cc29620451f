#ifndef KX7_PLATFORM_BASE_COMBO_BOX_H
#define KX7_PLATFORM_BASE_COMBO_BOX_H

#include <cstdint>

#include "platform/base/export.h"

/// What the logic asks of a control that shows a list of texts, each with a number of its own. Combo boxes
/// and list boxes are such lists; a window class implements these operations by messages to its control, and
/// anything else that keeps texts can stand in for one. Items are counted from 0 in the order in which the
/// control shows them, which may be a sorted one.
class KX7_API CItemBox
{
  public:
    static constexpr int kError = -1;       ///< Result of a failed operation, or "no item".
    static constexpr int kErrorSpace = -2;  ///< Result of AddString when there is no memory left.

    /// Removes all items.
    virtual void ResetContent() = 0;

    /// Adds an item and returns its index; kError or kErrorSpace on failure.
    virtual int AddString(char const * text) = 0;

    /// Number of items; kError on failure.
    virtual int GetCount() const = 0;

    /// The number stored with an item; 0 until set. Room for a pointer. SetItemData returns kError for an
    /// index that isn't there.
    virtual int SetItemData(int index, std::uintptr_t data) = 0;
    virtual std::uintptr_t GetItemData(int index) const = 0;

    /// The selected item, kError for none. SetCurSel with -1 selects none; its result is kError then and for
    /// an index that isn't there.
    virtual int GetCurSel() const = 0;
    virtual int SetCurSel(int index) = 0;

  protected:
    ~CItemBox() = default;
};

/// A drop-down list.
class KX7_API CComboBox : public CItemBox
{
  public:
    virtual ~CComboBox() = default;
};

/// A list of texts.
class KX7_API CListBox : public CItemBox
{
  public:
    virtual ~CListBox() = default;
};

#endif
