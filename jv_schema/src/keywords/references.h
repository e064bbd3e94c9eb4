#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `$ref`, and the references that depend on the way of the evaluation: `$dynamicRef`, `$recursiveRef`.
[[nodiscard]] std::unique_ptr<Keyword> makeRef(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeDynamicRef(const Site& site);

/// The target of a `$ref` within its resource; null for every other keyword.
[[nodiscard]] const Node* plainReference(const Keyword& keyword);

} // namespace specloom::jv::schema
