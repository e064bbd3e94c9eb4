#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `minimum` and `exclusiveMinimum`, `maximum` and `exclusiveMaximum`, by exact values.
[[nodiscard]] std::unique_ptr<Keyword> makeMinimum(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeMaximum(const Site& site);

} // namespace specloom::jv::schema
