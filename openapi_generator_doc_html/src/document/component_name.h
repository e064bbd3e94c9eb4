#pragma once

#include "openapi/openapi.h"
#include "openapi/reference.h"

#include <optional>    // std::optional
#include <string_view> // std::string_view

namespace specloom::openapi_generator::doc_html {

/// The component that a reference names, as it is written: this may be a reference itself, while
/// Reference::target() is the object behind it.
struct ComponentName {
    openapi::ComponentSection section;
    std::string_view name;
};

/// Nothing for a reference without a target, and for one to what is no component.
[[nodiscard]] std::optional<ComponentName> componentNameOf(const openapi::Reference& reference);

} // namespace specloom::openapi_generator::doc_html
