#include "foundation/detail_copy_of_item.h"

namespace detail {
std::unique_ptr<CVARDObject> CopyOfItem(CObject * item)
{
    auto * const from = dynamic_cast<CVARDObject *>(item);
    if (!from)
        return nullptr;
    std::unique_ptr<CObject> made(from->CreateNewObject());
    auto * const copy = dynamic_cast<CVARDObject *>(made.get());
    if (!copy)
        return nullptr;
    static_cast<void>(made.release());
    copy->CopyObject(from);
    return std::unique_ptr<CVARDObject>(copy);
}
}  // namespace detail
