#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `contains` with `minContains` and `maxContains`.
[[nodiscard]] std::unique_ptr<Keyword> makeContains(const Site& site);

} // namespace specloom::jv::schema
