#include "test_support/corpora.h"
#include "workspace.h"

#include <cctype>     // std::tolower
#include <filesystem> // std::filesystem
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

const std::string heading = "Spec Loom uses the following open-source libraries:\n\n";

std::string source(const std::string& name) {
    return test_support::fileBytes(std::filesystem::path(SPECLOOM_SOURCE_DIR) / name);
}

const std::vector<std::string> libraries = {
    "ada",           "argparse", "base64",   "{fmt}",        "GoogleTest", "HunSpell", "LibBF",  "MD4C",
    "opentelemetry", "semver",   "TinyXML2", "uri-template", "utfcpp",     "yajl",     "libyaml"};

/// The file with the licence of a library: its name in lower case.
std::string licenseOf(const std::string& library) {
    std::string file = "cli/licenses/";
    for (const char c : library)
        if (c != '{' && c != '}')
            file += static_cast<char>(std::tolower(c));
    return source(file + ".txt");
}

TEST(License, printsTheTextOfOneLibraryOrOfAll) {
    const Workspace workspace;
    std::string all = heading;
    for (const std::string& library : libraries) {
        SCOPED_TRACE(library);
        const std::string text = "\n" + licenseOf(library);
        const Outcome outcome = workspace.run({"license", "--library", library});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out, text);
        all += library + text + "\n\n";
    }
    const Outcome outcome = workspace.run({"license"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, all);
}

} // namespace
} // namespace specloom::tests
