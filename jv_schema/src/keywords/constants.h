#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `const` and `enum`: equal by JV::equals().
[[nodiscard]] std::unique_ptr<Keyword> makeConst(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeEnum(const Site& site);

} // namespace specloom::jv::schema
