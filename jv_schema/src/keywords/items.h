#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `prefixItems` and `items`, or `items` and `additionalItems` up to draft 2019-09: one object for both.
[[nodiscard]] std::unique_ptr<Keyword> makeItems(const Site& site);

} // namespace specloom::jv::schema
