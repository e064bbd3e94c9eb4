#pragma once

#include "workspace.h"

#include <cstddef> // std::size_t
#include <string>  // std::string

namespace specloom::tests {

/// Expects that each console block of a page of the manual, given by its path from the root of the
/// repository, is what the commands in it print in the folder, one block after another. With
/// SPECLOOM_UPDATE_GOLDEN set the page is written anew, for review, which fails the test. Returns the number
/// of blocks.
[[nodiscard]] std::size_t expectManualShows(const Workspace& workspace, const std::string& page);

} // namespace specloom::tests
