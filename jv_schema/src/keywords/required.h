#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `required`, and `dependentRequired`, which asks for properties only where another one is.
[[nodiscard]] std::unique_ptr<Keyword> makeRequired(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeDependentRequired(const Site& site);

} // namespace specloom::jv::schema
