#pragma once

#include "openapi/reference.h"

#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// The name of the component that a reference names, as it was written: that of a component which is a
/// reference itself too, although the tree leads past it. Empty when there is none.
[[nodiscard]] std::string_view targetName(const openapi::Reference& reference);

/// The node as a reference; null when it is none.
[[nodiscard]] inline const openapi::Reference* asReference(const openapi::Node* node) noexcept {
    return node != nullptr && node->type() == openapi::NodeType::Reference
               ? static_cast<const openapi::Reference*>(node)
               : nullptr;
}

} // namespace specloom::openapi_diff
