#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `uniqueItems`: equal by JV::equals().
[[nodiscard]] std::unique_ptr<Keyword> makeUniqueItems(const Site& site);

} // namespace specloom::jv::schema
