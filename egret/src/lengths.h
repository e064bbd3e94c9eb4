#pragma once

#include "egret/graph.h"
#include "egret/length_set.h"

#include <vector> // std::vector

namespace specloom::egret {

/// For each node the lengths, up to `limit`, of the strings on the paths from there to the end: exact, unless
/// there are too many to look at; then the largest ones are left out.
[[nodiscard]] std::vector<LengthSet> lengthsToEnd(const Graph& graph, Length limit);

} // namespace specloom::egret
