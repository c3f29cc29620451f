#ifndef KX7_PLATFORM_BASE_ARRAY_H
#define KX7_PLATFORM_BASE_ARRAY_H

#include <algorithm>
#include <cstddef>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/base/object.h"

/// A growing array of values. `ARG_TYPE` is the type by which elements are handed over, by default a
/// reference to a constant element; it may be a plain reference. Elements that the array makes itself are
/// value initialised (all zeroes for plain records). Indices count from 0 and have to lie inside of the array
/// unless an operation says otherwise. Not copyable; Copy copies the elements.
template <class TYPE, class ARG_TYPE = TYPE const &>
class CArray : public CObject
{
    static_assert(!std::is_same_v<TYPE, bool>, "elements have to be addressable");

  public:
    CArray() = default;
    CArray(CArray const &) = delete;
    CArray & operator=(CArray const &) = delete;

    int GetSize() const { return static_cast<int>(m_elements.size()); }
    int GetUpperBound() const { return GetSize() - 1; }
    bool IsEmpty() const { return m_elements.empty(); }

    /// Cuts the array or fills it up to a size; below 0 counts as 0. `growBy` above 0 is the number of
    /// elements for which room is kept beyond the size when more memory is needed; it changes nothing else.
    void SetSize(int size, int growBy = -1)
    {
        std::size_t const wanted = Position(size);
        if (growBy > 0 && wanted > m_elements.capacity())
            m_elements.reserve(wanted + Position(growBy));
        m_elements.resize(wanted);
    }

    /// Gives back the memory that isn't in use.
    void FreeExtra() { m_elements.shrink_to_fit(); }

    void RemoveAll() { std::vector<TYPE>().swap(m_elements); }

    TYPE GetAt(int index) const { return m_elements[Position(index)]; }
    void SetAt(int index, ARG_TYPE element) { m_elements[Position(index)] = element; }
    TYPE & ElementAt(int index) { return m_elements[Position(index)]; }
    TYPE & operator[](int index) { return m_elements[Position(index)]; }
    TYPE const & operator[](int index) const { return m_elements[Position(index)]; }

    /// The elements one after the other; null or unusable while the array is empty. Valid until the size
    /// changes.
    TYPE * GetData() { return m_elements.data(); }
    TYPE const * GetData() const { return m_elements.data(); }

    /// Sets the element at an index from 0 on, growing the array up to it if needed.
    void SetAtGrow(int index, ARG_TYPE element)
    {
        TYPE copy = element;  // may be an element of this array, which moves when it grows
        if (index >= GetSize())
            SetSize(index + 1);
        m_elements[Position(index)] = std::move(copy);
    }

    /// Puts an element at the end; the result is its index.
    int Add(ARG_TYPE element)
    {
        m_elements.push_back(element);
        return GetUpperBound();
    }

    /// Puts the elements of another array (or of this one) at the end; the result is the index of the first.
    int Append(CArray const & from)
    {
        int const first = GetSize();
        std::size_t const count = from.m_elements.size();
        m_elements.reserve(m_elements.size() + count);
        for (std::size_t i = 0; i < count; ++i)
            m_elements.push_back(from.m_elements[i]);
        return first;
    }

    /// Replaces the elements by copies of those of another array.
    void Copy(CArray const & from) { m_elements = from.m_elements; }

    /// Puts `count` copies of an element in front of the index; the array grows up to an index beyond its
    /// end.
    void InsertAt(int index, ARG_TYPE element, int count = 1)
    {
        TYPE const copy = element;
        if (index > GetSize())
            SetSize(index);
        m_elements.insert(m_elements.begin() + index, Position(count), copy);
    }

    /// Puts the elements of another array in front of the index, growing as above; an empty or null one does
    /// nothing.
    void InsertAt(int index, CArray * from)
    {
        if (!from || from->IsEmpty())
            return;
        std::vector<TYPE> const copy = from->m_elements;
        if (index > GetSize())
            SetSize(index);
        m_elements.insert(m_elements.begin() + index, copy.begin(), copy.end());
    }

    /// Removes `count` elements from the index on.
    void RemoveAt(int index, int count = 1)
    {
        auto const first = m_elements.begin() + index;
        m_elements.erase(first, first + count);
    }

    TYPE * begin() { return m_elements.data(); }
    TYPE * end() { return m_elements.data() + m_elements.size(); }
    TYPE const * begin() const { return m_elements.data(); }
    TYPE const * end() const { return m_elements.data() + m_elements.size(); }

    /// All elements; valid until the size changes.
    std::span<TYPE const> View() const { return m_elements; }

  private:
    static std::size_t Position(int index) { return index > 0 ? static_cast<std::size_t>(index) : 0; }

    std::vector<TYPE> m_elements;
};

#endif
