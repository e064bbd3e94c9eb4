#pragma once

#include "cli/command_line.h"

#include <string> // std::string

/// Scripts that let a shell complete the program's command line: commands, options, the values that are
/// known, and files of the kind that an argument takes. Each stands alone, and takes all texts of the tree to
/// the letter.
namespace specloom::command_pages {

/// For bash 4 and newer, to be sourced; the package bash-completion finds it by its name.
[[nodiscard]] std::string bashCompletion(const cli::CommandDescription& root);

/// For zsh 5, an autoloaded function: a file "_" and the program's name in a folder of $fpath.
[[nodiscard]] std::string zshCompletion(const cli::CommandDescription& root);

/// For fish 3, to be sourced or found by its name.
[[nodiscard]] std::string fishCompletion(const cli::CommandDescription& root);

} // namespace specloom::command_pages
