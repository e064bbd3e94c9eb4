#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `pattern`.
[[nodiscard]] std::unique_ptr<Keyword> makePattern(const Site& site);

} // namespace specloom::jv::schema
