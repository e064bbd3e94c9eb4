#include "manual.h"

#include "test_support/corpora.h"
#include "test_support/golden.h"

#include <filesystem>  // std::filesystem::path
#include <sstream>     // std::istringstream
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

/// The commands of a block, which begin with "$ ".
std::vector<std::string> commandsOf(const std::string& block) {
    std::istringstream lines(block);
    std::vector<std::string> commands;
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("$ "))
            commands.push_back(line.substr(2));
    return commands;
}

} // namespace

std::size_t expectManualShows(const Workspace& workspace, const std::string& page) {
    constexpr std::string_view opening = "\n```console\n";
    const std::filesystem::path file = std::filesystem::path(SPECLOOM_SOURCE_DIR) / page;
    const std::string text = test_support::fileBytes(file);
    std::string shown;
    std::size_t blocks = 0;
    std::size_t end = 0;
    for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening, end)) {
        const std::size_t begin = at + opening.size();
        shown += text.substr(end, begin - end);
        end = text.find("```\n", begin);
        if (end == std::string::npos) {
            ADD_FAILURE() << page << ": a block has no end";
            return blocks;
        }
        shown +=
            workspace.transcript(commandsOf(text.substr(begin, end - begin)), Workspace::Statuses::Hidden);
        ++blocks;
    }
    test_support::expectGolden(shown + text.substr(end), file);
    return blocks;
}

} // namespace specloom::tests
