#ifndef KX7_PLATFORM_DEVICE_OBJECT_MAP_H
#define KX7_PLATFORM_DEVICE_OBJECT_MAP_H

#include "platform/device/gdi_objects.h"

namespace detail {
/// Notes which object owns a handle, so that the handle leads back to it.
void EnterOwner(HGDIOBJ handle, CGdiObject * owner);

/// Forgets the owner of a handle, if it is that one: several objects may hold the same stock handle, and the
/// last counts.
void RemoveOwner(HGDIOBJ handle, CGdiObject const * owner);

/// The object that owns a handle; null if none does.
CGdiObject * FindOwner(HGDIOBJ handle);

/// The temporary object that stands for a handle without an owner, made by `make` if there is none yet.
CGdiObject * FindTemporary(HGDIOBJ handle, CGdiObject * (*make)());
}  // namespace detail

#endif
