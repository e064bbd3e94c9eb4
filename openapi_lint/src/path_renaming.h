#pragma once

#include "openapi_lint/lint_context.h"

#include <functional>  // std::function
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// A new URL for the path item, or the reference to one, that has the URL `oldUrl`.
using PathRenaming = std::function<std::string(std::string_view oldUrl, const openapi::Node& entry)>;

/// Gives the paths of the context's document new URLs, in the tree and in its edits. A new URL has the names
/// of its template in the order of those of the old one, perhaps in another spelling; path parameters of the
/// path item and its operations that have such a name get the new one. Parameters that are components keep
/// their names, since other paths use them as well.
///
/// A path keeps its URL when the new one is taken or when two of its parameters would have one name. The
/// context gets a note for each path that gets a new URL or keeps its own, and for each parameter that does
/// not follow.
void renamePaths(LintContext& context, const PathRenaming& renaming);

} // namespace specloom::openapi_lint
