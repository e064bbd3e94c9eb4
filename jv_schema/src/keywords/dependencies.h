#pragma once

#include "jv_schema/node.h"

#include <memory> // std::unique_ptr

namespace specloom::jv::schema {

/// `dependentSchemas`, and `dependencies`, which also takes names of properties.
[[nodiscard]] std::unique_ptr<Keyword> makeDependencies(const Site& site);

} // namespace specloom::jv::schema
