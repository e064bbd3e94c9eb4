#pragma once

#include "jv_generator/generator.h"
#include "openapi_generator/issue.h"

#include <vector> // std::vector

namespace specloom::openapi_generator::data {

/// What looks like a mistake in patterns, at their places.
[[nodiscard]] std::vector<Issue> warningsOfPatterns(const std::vector<jv_generator::UsedPattern>& patterns);

} // namespace specloom::openapi_generator::data
