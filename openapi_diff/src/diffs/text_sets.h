#pragma once

#include "openapi_diff/diff_context.h"

#include <vector> // std::vector

namespace specloom::openapi_diff {

/// Texts in their order; none for null.
[[nodiscard]] std::vector<std::string_view> textsOf(const std::vector<openapi::Text>* texts);

/// Compares the plain texts of two nodes, of which one may be null, as sets: one change for each that was
/// added or removed, with its position in the list that has it.
void diffTextSets(ConfigKey key, const openapi::Node* source, const openapi::Node* destination,
                  const std::vector<std::string_view>& before, const std::vector<std::string_view>& after,
                  DiffContext& context);

} // namespace specloom::openapi_diff
