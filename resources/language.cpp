// The string resources of a native language library: tells the table that KX7_STRINGS_FILE holds, in the
// language KX7_LANGUAGE. Compiled once for each such library (cmake/module_resources.cmake).
#include "platform/base/resource_module.h"

namespace {
constexpr detail::StringResource kStrings[] = {
#define KX7_STRING(id, text) {id, text},
#include KX7_STRINGS_FILE
};

constexpr detail::StringTable kTable = {KX7_LANGUAGE, kStrings};
}  // namespace

extern "C" __attribute__((visibility("default"))) detail::StringTable const * kx7_string_resources()
{
    return &kTable;
}
