#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `propertyNames`.
[[nodiscard]] std::unique_ptr<Keyword> makePropertyNames(const Site& site);

} // namespace specloom::jv::schema
