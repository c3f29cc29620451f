#ifndef KX7_FOUNDATION_DETAIL_COPY_OF_ITEM_H
#define KX7_FOUNDATION_DETAIL_COPY_OF_ITEM_H

#include <memory>

#include "foundation/vard_object.h"

namespace detail {
/// A new object of the item's own class with the item's fields; null if the item is null or no CVARDObject,
/// or if its class can't be made by record.
std::unique_ptr<CVARDObject> CopyOfItem(CObject * item);
}  // namespace detail

#endif
