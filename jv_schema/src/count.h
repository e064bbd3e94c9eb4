#pragma once

#include "jv_schema/compiler.h"

#include <cstddef> // std::size_t

namespace specloom::jv::schema {

/// The value of a keyword that is an integer of at least 0; one that no size can reach counts as the largest
/// size. Throws CompileError.
[[nodiscard]] std::size_t countOf(const Site& site, const JV& value);

} // namespace specloom::jv::schema
