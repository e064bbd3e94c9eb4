#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `if` with `then` and `else`.
[[nodiscard]] std::unique_ptr<Keyword> makeConditional(const Site& site);

} // namespace specloom::jv::schema
