#ifndef KX7_TESTS_SUPPORT_LIST_COMBO_BOX_H
#define KX7_TESTS_SUPPORT_LIST_COMBO_BOX_H

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "platform/base/combo_box.h"

/// A box (CComboBox or CListBox) without a window: a plain list of texts with their data.
template <class Box>
class ListBox : public Box
{
  public:
    /// The box takes `count` items and answers each further one with `error`.
    void FailAfter(std::size_t count, int error)
    {
        m_room = count;
        m_error = error;
    }

    std::vector<std::string> const & Labels() const { return m_labels; }

    void ResetContent() override
    {
        m_labels.clear();
        m_data.clear();
        m_selected = CItemBox::kError;
    }

    int AddString(char const * text) override
    {
        if (m_labels.size() >= m_room)
            return m_error;
        std::size_t const index = PlaceFor(text);
        m_labels.insert(m_labels.begin() + static_cast<std::ptrdiff_t>(index), text);
        m_data.insert(m_data.begin() + static_cast<std::ptrdiff_t>(index), 0);
        return static_cast<int>(index);
    }

    int GetCount() const override { return static_cast<int>(m_labels.size()); }

    int SetItemData(int index, std::uintptr_t data) override
    {
        if (!HasItem(index))
            return CItemBox::kError;
        m_data[static_cast<std::size_t>(index)] = data;
        return 0;
    }

    std::uintptr_t GetItemData(int index) const override
    {
        return HasItem(index) ? m_data[static_cast<std::size_t>(index)] : 0;
    }

    int GetCurSel() const override { return m_selected; }

    int SetCurSel(int index) override
    {
        m_selected = HasItem(index) ? index : CItemBox::kError;
        return m_selected;
    }

  protected:
    /// Where a new item goes: at the end.
    virtual std::size_t PlaceFor(std::string const &) const { return m_labels.size(); }

  private:
    bool HasItem(int index) const { return index >= 0 && index < GetCount(); }

    std::vector<std::string> m_labels;
    std::vector<std::uintptr_t> m_data;
    int m_selected = CItemBox::kError;
    std::size_t m_room = std::numeric_limits<std::size_t>::max();
    int m_error = CItemBox::kError;
};

using ListComboBox = ListBox<CComboBox>;
using ListListBox = ListBox<CListBox>;

/// The same for a box that sorts its items.
class SortingListComboBox : public ListComboBox
{
  protected:
    std::size_t PlaceFor(std::string const & text) const override
    {
        auto const place = std::lower_bound(Labels().begin(), Labels().end(), text);
        return static_cast<std::size_t>(place - Labels().begin());
    }
};

#endif
