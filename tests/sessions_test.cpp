// The program as users see it in their shells: tests/sessions/*.console. A heading "# ..." begins a session
// in a folder of its own with the files of the folder that is called as the file. What each command writes
// stands below it, behind that "=> STATUS" when it is not 0, and at the end what has become of the files.
// With SPECLOOM_UPDATE_GOLDEN set all but the commands is written anew, for review.

#include "test_support/golden.h"
#include "workspace.h"

#include <algorithm>  // std::replace
#include <filesystem> // std::filesystem
#include <sstream>    // std::istringstream
#include <string>     // std::string, std::getline
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace specloom::tests {
namespace {

const fs::path sessionFolder = SPECLOOM_SOURCE_DIR "/tests/sessions";

std::string sessionOf(const std::vector<std::string>& commands, const fs::path& files) {
    const Workspace workspace;
    fs::copy(files, workspace.path(""));
    std::string shown = workspace.transcript(commands, Workspace::Statuses::Shown);
    shown += workspace
                 .runScript("diff -rN --no-dereference -x .specloom.telemetry '" + files.string() +
                                "' . | sed 's|^diff .* [.]/|became of |'",
                            {})
                 .out;
    for (const std::string& path : {workspace.path("").string(), files.string() + '/'})
        for (std::size_t at = shown.find(path); at != std::string::npos; at = shown.find(path, at))
            shown.erase(at, path.size());
    return shown;
}

class Sessions : public testing::TestWithParam<fs::path> {};

TEST_P(Sessions, showWhatIsWrittenDown) {
    const fs::path files = fs::path(GetParam()).replace_extension();
    std::istringstream lines(test_support::fileBytes(GetParam()));
    std::string shown;
    std::vector<std::string> commands;
    const auto finish = [&] {
        if (!commands.empty())
            shown += sessionOf(commands, files);
        commands.clear();
    };
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("# ")) {
            finish();
            shown += (shown.empty() ? "" : "\n") + line + '\n';
        } else if (line.starts_with("$ ")) {
            commands.push_back(line.substr(2));
        }
    }
    finish();
    test_support::expectGolden(shown, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Console, Sessions,
                         testing::ValuesIn(test_support::filesBelow(sessionFolder, ".console")),
                         [](const auto& file) {
                             std::string name = file.param.stem().string();
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

} // namespace
} // namespace specloom::tests
