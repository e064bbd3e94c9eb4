#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `allOf`, `anyOf`, `oneOf` and `not`.
[[nodiscard]] std::unique_ptr<Keyword> makeAllOf(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeAnyOf(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeOneOf(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeNot(const Site& site);

} // namespace specloom::jv::schema
