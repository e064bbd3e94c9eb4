#pragma once

#include "cli/command_line.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::command_pages {

/// The program's page of section 1, in the man macros of roff. `version` stands in its foot. All texts of the
/// tree come out as they are, whatever they hold; line ends in them become spaces.
[[nodiscard]] std::string manPage(const cli::CommandDescription& root, std::string_view version);

} // namespace specloom::command_pages
