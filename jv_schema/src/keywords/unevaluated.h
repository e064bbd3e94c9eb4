#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `unevaluatedItems` and `unevaluatedProperties`.
[[nodiscard]] std::unique_ptr<Keyword> makeUnevaluatedItems(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeUnevaluatedProperties(const Site& site);

} // namespace specloom::jv::schema
