#ifndef KX7_PLATFORM_DEVICE_CAIRO_HANDLE_TABLE_H
#define KX7_PLATFORM_DEVICE_CAIRO_HANDLE_TABLE_H

// Handles of graphics objects. A handle is an index into a table with the generation of its slot, so a handle
// that outlived its object is recognised and never reaches another one.
#include <memory>

#include "platform/base/gdi_types.h"

namespace detail {
enum class ObjectKind
{
    Pen,
    Brush,
    Font,
    Bitmap,
    Region,
    Context
};

/// What stands behind a handle.
class GraphicsObject
{
  public:
    explicit GraphicsObject(ObjectKind kind) : m_kind(kind) {}
    virtual ~GraphicsObject() = default;
    GraphicsObject(GraphicsObject const &) = delete;
    GraphicsObject & operator=(GraphicsObject const &) = delete;

    ObjectKind Kind() const { return m_kind; }

    int m_selections = 0;  ///< Into how many contexts the object is selected now.
    bool m_stock = false;  ///< Never deleted and not counted.

  private:
    ObjectKind m_kind;
};

/// Enters an object; null (and the object is gone) if the table is full.
HGDIOBJ AddObject(std::unique_ptr<GraphicsObject> object);

/// The object of a handle; null for a handle that is null, stale or none of the table's.
GraphicsObject * FindObject(void const * handle);

/// Deletes the object of a handle.
void RemoveObject(void const * handle);

/// Number of objects in the table that aren't stock objects.
int CountObjects();

/// The object of a handle if it is of the class's kind.
template <typename Object>
Object * Find(void const * handle)
{
    GraphicsObject * const object = FindObject(handle);
    return object && object->Kind() == Object::kKind ? static_cast<Object *>(object) : nullptr;
}
}  // namespace detail

#endif
