#pragma once

#include "cli/command_line.h"

#include <string> // std::string
#include <vector> // std::vector

namespace specloom::command_pages {

/// A command and the words that lead to it, such as "specloom lint".
struct CommandWithPath {
    std::string path;
    const cli::CommandDescription* command; // lies in the tree that it was found in
};

/// Every command of the tree, each before those below it.
[[nodiscard]] std::vector<CommandWithPath> commandsWithPaths(const cli::CommandDescription& root);

/// The options of the command without those that the root has too.
[[nodiscard]] std::vector<const cli::ArgumentDescription*> ownOptions(const cli::CommandDescription& root,
                                                                      const cli::CommandDescription& command);

} // namespace specloom::command_pages
