#pragma once

#include "source_edit/layout.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::source_edit {

/// Lines that go, and those that come in their place; counted from 0.
struct LineChange {
    Extent removed;
    Extent added;
};

/// More differing lines than this are not told apart: memory grows with their square.
inline constexpr std::size_t mostDifferingLines = 2000;

/// The shortest list of changes that makes `after` of `before`, in their order, by the algorithm of Myers (An
/// O(ND) Difference Algorithm and Its Variations, 1986). Where more lines than mostDifferingLines differ, one
/// change for all between the first and the last of them.
[[nodiscard]] std::vector<LineChange> lineScript(const std::vector<std::string_view>& before,
                                                 const std::vector<std::string_view>& after);

} // namespace specloom::source_edit
