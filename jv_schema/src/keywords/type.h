#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `type`. Up to draft 4 an integer is a number written without fraction and exponent, later any number
/// without a fraction.
[[nodiscard]] std::unique_ptr<Keyword> makeType(const Site& site);

} // namespace specloom::jv::schema
