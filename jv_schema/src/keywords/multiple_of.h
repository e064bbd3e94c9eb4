#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `multipleOf`, by the decimal digits of both numbers.
[[nodiscard]] std::unique_ptr<Keyword> makeMultipleOf(const Site& site);

} // namespace specloom::jv::schema
