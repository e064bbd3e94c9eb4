// Holds the documentation against the tree: what it names must be there.

#include <gtest/gtest.h>

#include <algorithm>   // std::any_of
#include <filesystem>  // std::filesystem
#include <fstream>     // std::ifstream
#include <iterator>    // std::istreambuf_iterator
#include <sstream>     // std::istringstream
#include <string>      // std::string, std::getline
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace {

namespace fs = std::filesystem;

const fs::path root = SPECLOOM_SOURCE_DIR;

std::string textOf(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream) << path;
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The texts between `open` and the next `close`, as far as they stand on one line.
std::vector<std::string> between(std::string_view text, std::string_view open, char close) {
    std::vector<std::string> result;
    for (std::size_t at = text.find(open); at != std::string_view::npos; at = text.find(open, at)) {
        at += open.size();
        const std::size_t end = text.find_first_of(std::string{close, '\n'}, at);
        if (end == std::string_view::npos)
            break;
        if (text[end] == close)
            result.emplace_back(text.substr(at, end - at));
        at = end + 1;
    }
    return result;
}

/// In the architecture page a text in backticks that has a slash is a path from the root of the repository.
std::vector<std::string> pathsOfArchitecture() {
    std::vector<std::string> result;
    for (const std::string& quoted : between(textOf(root / "docs/architecture.md"), "`", '`'))
        if (quoted.find('/') != std::string::npos)
            result.push_back(quoted);
    return result;
}

std::vector<fs::path> pages() {
    std::vector<fs::path> result;
    const auto take = [&](const fs::directory_entry& entry) {
        if (entry.path().extension() == ".md")
            result.push_back(entry.path());
    };
    for (const auto& entry : fs::directory_iterator(root))
        take(entry);
    for (const auto& entry : fs::recursive_directory_iterator(root / "docs"))
        take(entry);
    return result;
}

TEST(Architecture, EveryPathItNamesExists) {
    const std::vector<std::string> paths = pathsOfArchitecture();
    ASSERT_FALSE(paths.empty());
    for (const std::string& path : paths)
        EXPECT_TRUE(fs::exists(root / path)) << path;
}

TEST(Architecture, EveryFolderAtTheTopIsNamed) {
    const std::vector<std::string> paths = pathsOfArchitecture();
    for (const auto& entry : fs::directory_iterator(root)) {
        const std::string folder = entry.path().filename().string() + "/";
        if (!entry.is_directory() || folder.starts_with(".") || folder == "build/")
            continue;
        const bool named = std::any_of(paths.begin(), paths.end(),
                                       [&](const std::string& path) { return path.starts_with(folder); });
        EXPECT_TRUE(named) << folder;
    }
}

/// The text without its fenced blocks, which may show links of other documents.
std::string proseOf(const std::string& text) {
    std::string prose;
    bool inside = false;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```"))
            inside = !inside;
        else if (!inside)
            prose += line + '\n';
    }
    return prose;
}

TEST(Documentation, EveryRelativeLinkLeadsSomewhere) {
    std::size_t links = 0;
    for (const fs::path& page : pages())
        for (const std::string& link : between(proseOf(textOf(page)), "](", ')')) {
            if (link.find("://") != std::string::npos || link.starts_with("#"))
                continue;
            ++links;
            EXPECT_TRUE(fs::exists(page.parent_path() / link.substr(0, link.find('#'))))
                << page << ": " << link;
        }
    EXPECT_GT(links, 0u);
}

} // namespace
