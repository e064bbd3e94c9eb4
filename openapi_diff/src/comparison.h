#pragma once

#include "openapi_diff/change.h"

#include <vector> // std::vector

namespace specloom::openapi_diff {

/// What a comparison of two objects found below them.
struct Comparison {
    std::vector<Change> changes;
    const openapi::Node* destination = nullptr; ///< the object of the destination
    ChangeLevel level = ChangeLevel::None;      ///< the worst of the changes
    ChangeLevel weight = ChangeLevel::None; ///< the worst Change::weight of those that are no part of another
};

} // namespace specloom::openapi_diff
