#include "command_pages/commands_with_paths.h"

#include <algorithm> // std::find

namespace specloom::command_pages {

std::vector<CommandWithPath> commandsWithPaths(const cli::CommandDescription& root) {
    std::vector<CommandWithPath> result;
    std::vector<CommandWithPath> open = {{root.name, &root}};
    while (!open.empty()) {
        const CommandWithPath current = open.back();
        open.pop_back();
        result.push_back(current);
        const auto& below = current.command->commands;
        for (auto child = below.rbegin(); child != below.rend(); ++child)
            open.push_back({current.path + ' ' + child->name, &*child});
    }
    return result;
}

std::vector<const cli::ArgumentDescription*> ownOptions(const cli::CommandDescription& root,
                                                        const cli::CommandDescription& command) {
    std::vector<const cli::ArgumentDescription*> result;
    for (const cli::ArgumentDescription& option : command.options)
        if (std::find(root.options.begin(), root.options.end(), option) == root.options.end())
            result.push_back(&option);
    return result;
}

} // namespace specloom::command_pages
