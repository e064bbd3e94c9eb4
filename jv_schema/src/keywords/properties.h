#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `properties`, `patternProperties` and `additionalProperties`: one object for the three, made for the first
/// of them, so that the members of an instance are walked once.
[[nodiscard]] std::unique_ptr<Keyword> makeProperties(const Site& site);

} // namespace specloom::jv::schema
