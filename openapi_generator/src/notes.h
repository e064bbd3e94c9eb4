#pragma once

#include <cstddef>     // std::size_t
#include <iosfwd>      // std::ostream
#include <string_view> // std::string_view

namespace specloom::openapi_generator {

/// Writes the line
///   "specloom: note: {count} operations have no declared tag and so no {thing}"
/// about operations that OperationGrouper::ungrouped() has and a generator leaves out; nothing for none.
void noteOperationsWithoutTag(std::size_t count, std::string_view thing, std::ostream& out);
/// The same on standard error.
void noteOperationsWithoutTag(std::size_t count, std::string_view thing);

} // namespace specloom::openapi_generator
