#ifndef KX7_PLATFORM_BASE_POINTER_LIST_H
#define KX7_PLATFORM_BASE_POINTER_LIST_H

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/base/object.h"

/// A place in a list; null stands for none. It stays valid until its element is removed.
struct ListPosition;
using POSITION = ListPosition *;

struct ListPosition
{
    ListPosition(ListPosition const &) = delete;

  protected:
    ListPosition() = default;
};

namespace detail {
/// A doubly linked list of pointers. Positions handed in have to belong to the list; heads, tails and
/// removals want a list that isn't empty. Not copyable.
template <class Pointer>
class PointerList : public CObject
{
  public:
    /// Nodes are made in blocks of the given number, at least 1.
    explicit PointerList(int blockSize) : m_blockSize(static_cast<std::size_t>(std::max(blockSize, 1))) {}
    PointerList(PointerList const &) = delete;
    PointerList & operator=(PointerList const &) = delete;

    int GetCount() const { return m_count; }
    bool IsEmpty() const { return m_count == 0; }

    Pointer & GetHead() { return m_head->value; }
    Pointer GetHead() const { return m_head->value; }
    Pointer & GetTail() { return m_tail->value; }
    Pointer GetTail() const { return m_tail->value; }

    POSITION GetHeadPosition() const { return m_head; }
    POSITION GetTailPosition() const { return m_tail; }

    /// The element at the position, which moves on to the next or previous one, null behind the last.
    Pointer & GetNext(POSITION & position) { return Step(position, &Node::next); }
    Pointer GetNext(POSITION & position) const { return Step(position, &Node::next); }
    Pointer & GetPrev(POSITION & position) { return Step(position, &Node::previous); }
    Pointer GetPrev(POSITION & position) const { return Step(position, &Node::previous); }

    Pointer & GetAt(POSITION position) { return NodeAt(position)->value; }
    Pointer GetAt(POSITION position) const { return NodeAt(position)->value; }
    void SetAt(POSITION position, Pointer value) { NodeAt(position)->value = value; }

    POSITION AddHead(Pointer value) { return Link(value, nullptr, m_head); }
    POSITION AddTail(Pointer value) { return Link(value, m_tail, nullptr); }

    /// Add an element before or behind the position; for a null one at the head or the tail.
    POSITION InsertBefore(POSITION position, Pointer value)
    {
        return position ? Link(value, NodeAt(position)->previous, NodeAt(position)) : AddHead(value);
    }
    POSITION InsertAfter(POSITION position, Pointer value)
    {
        return position ? Link(value, NodeAt(position), NodeAt(position)->next) : AddTail(value);
    }

    Pointer RemoveHead() { return Unlink(m_head); }
    Pointer RemoveTail() { return Unlink(m_tail); }
    void RemoveAt(POSITION position) { Unlink(NodeAt(position)); }

    void RemoveAll()
    {
        m_blocks.clear();
        m_head = m_tail = m_free = nullptr;
        m_count = 0;
    }

    /// The first position of the pointer behind `startAfter` or from the head; null if there is none.
    POSITION Find(Pointer value, POSITION startAfter = nullptr) const
    {
        Node * node = startAfter ? NodeAt(startAfter)->next : m_head;
        while (node && node->value != value)
            node = node->next;
        return node;
    }

    /// The position of an index counted from 0 at the head; null outside of the list.
    POSITION FindIndex(int index) const
    {
        if (index < 0 || index >= m_count)
            return nullptr;
        Node * node = m_head;
        while (index-- > 0)
            node = node->next;
        return node;
    }

  private:
    struct Node : ListPosition
    {
        Pointer value = nullptr;
        Node * previous = nullptr;
        Node * next = nullptr;
    };

    static Node * NodeAt(POSITION position) { return static_cast<Node *>(position); }

    static Pointer & Step(POSITION & position, Node * Node::*direction)
    {
        Node * node = NodeAt(position);
        position = node->*direction;
        return node->value;
    }

    Node * NewNode()
    {
        if (!m_free) {
            auto & block = m_blocks.emplace_back(std::make_unique<Node[]>(m_blockSize));
            for (std::size_t i = m_blockSize; i-- > 0;)
                Release(&block[i]);
        }
        Node * node = m_free;
        m_free = node->next;
        return node;
    }

    void Release(Node * node)
    {
        node->next = m_free;
        m_free = node;
    }

    Node * Link(Pointer value, Node * previous, Node * next)
    {
        Node * node = NewNode();
        node->value = value;
        node->previous = previous;
        node->next = next;
        (previous ? previous->next : m_head) = node;
        (next ? next->previous : m_tail) = node;
        ++m_count;
        return node;
    }

    Pointer Unlink(Node * node)
    {
        Pointer const value = node->value;
        (node->previous ? node->previous->next : m_head) = node->next;
        (node->next ? node->next->previous : m_tail) = node->previous;
        Release(node);
        --m_count;
        return value;
    }

    std::size_t m_blockSize;
    int m_count = 0;
    Node * m_head = nullptr;
    Node * m_tail = nullptr;
    Node * m_free = nullptr;  // unused nodes, linked by `next`
    std::vector<std::unique_ptr<Node[]>> m_blocks;
};
}  // namespace detail

#endif
