// Holds the documentation against the tree: what it names must be there.

#include "tree.h"

#include <algorithm>   // std::any_of, std::sort
#include <cctype>      // std::isdigit
#include <filesystem>  // std::filesystem
#include <map>         // std::map
#include <sstream>     // std::istringstream
#include <string>      // std::string, std::getline
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::docs_tests {
namespace {

namespace fs = std::filesystem;

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

/// The names of modules behind `USES` of a `specloom_module`, in the order of the alphabet. Empty when there
/// are none.
std::vector<std::string> modulesUsedBy(const std::string& module) {
    std::istringstream words(textOf(root / module / "CMakeLists.txt"));
    std::vector<std::string> result;
    std::string word;
    while (words >> word && word != "specloom_module(" + module) {
    }
    while (words >> word && word != "USES" && word.back() != ')') {
    }
    while (word.back() != ')' && words >> word && word != "LIBRARIES" && word != "PUBLIC_LIBRARIES")
        result.push_back(word.substr(0, word.find(')')));
    std::sort(result.begin(), result.end());
    return result;
}

/// The rows of the table of modules: module and what its last column names.
std::map<std::string, std::vector<std::string>> modulesOfArchitecture() {
    std::map<std::string, std::vector<std::string>> result;
    std::istringstream lines(textOf(root / "docs/architecture.md"));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("| ") || !std::isdigit(static_cast<unsigned char>(line[2])))
            continue;
        const std::string module = between(line, "`", '/').front();
        std::vector<std::string>& uses = result[module];
        for (const std::string& quoted : between(line.substr(line.rfind('|', line.size() - 2)), "`", '`'))
            uses.push_back(quoted.substr(0, quoted.find('/')));
        std::sort(uses.begin(), uses.end());
    }
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

TEST(Architecture, everyPathItNamesExists) {
    const std::vector<std::string> paths = pathsOfArchitecture();
    ASSERT_FALSE(paths.empty());
    for (const std::string& path : paths)
        EXPECT_TRUE(fs::exists(root / path)) << path;
}

TEST(Architecture, arrowsAreThoseOfTheBuild) {
    const auto modules = modulesOfArchitecture();
    for (const auto& entry : fs::directory_iterator(root)) {
        const std::string module = entry.path().filename().string();
        if (fs::exists(entry.path() / "CMakeLists.txt") &&
            textOf(entry.path() / "CMakeLists.txt").find("specloom_module(" + module) != std::string::npos) {
            EXPECT_TRUE(modules.contains(module)) << module << " has no row in the table of modules";
        }
    }
    for (const auto& [module, uses] : modules) {
        if (module == "cli")
            continue; // may use whatever stands below
        EXPECT_EQ(uses, modulesUsedBy(module)) << module;
    }
}

TEST(Architecture, everyFolderAtTheTopIsNamed) {
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

TEST(Documentation, everyRelativeLinkLeadsSomewhere) {
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

/// The libraries that the program itself is built with, by the names by which CMake looks for them.
std::vector<std::string> librariesOfTheProgram() {
    const std::string file = textOf(root / "cmake/SpecloomDependencies.cmake");
    const std::string mandatory = file.substr(0, file.find("if(SPECLOOM_TESTS)"));
    std::vector<std::string> result;
    for (const char* call : {"find_package(", "pkg_check_modules("})
        for (const std::string& name : between(mandatory, call, ' '))
            if (name != "PkgConfig") // finds libraries and is none
                result.push_back(name);
    return result;
}

TEST(Licenses, thePageHasEveryLibraryOfTheProgram) {
    const std::string page = textOf(root / "docs/licenses.md");
    const std::vector<std::string> libraries = librariesOfTheProgram();
    ASSERT_GT(libraries.size(), 5u);
    for (const std::string& library : libraries)
        EXPECT_NE(page.find("| `" + library + "` |"), std::string::npos) << library;
}

TEST(Licenses, everyTextThatThePageNamesIsInstalled) {
    std::size_t texts = 0;
    for (const std::string& name : between(textOf(root / "docs/licenses.md"), "`", '`')) {
        if (!name.ends_with(".txt"))
            continue;
        ++texts;
        EXPECT_TRUE(fs::exists(root / "cli/licenses" / name) ||
                    fs::exists(root / "packaging/licenses" / name))
            << name;
    }
    EXPECT_GT(texts, 5u);
}

} // namespace
} // namespace specloom::docs_tests
