#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `minLength`, `minItems`, `minProperties`, and the same with "max". Lengths of strings are code points.
[[nodiscard]] std::unique_ptr<Keyword> makeMinSize(const Site& site);
[[nodiscard]] std::unique_ptr<Keyword> makeMaxSize(const Site& site);

} // namespace specloom::jv::schema
