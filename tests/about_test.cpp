#include <filesystem> // std::filesystem
#include <fstream>    // std::ifstream
#include <iterator>   // std::istreambuf_iterator
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workspace.h"

namespace specloom::tests {
namespace {

const std::string heading = "Spec Loom uses the following open-source libraries:\n\n";

std::string source(const std::string& name) {
    std::ifstream stream(std::filesystem::path(SPECLOOM_SOURCE_DIR) / name, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << name;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

struct License {
    std::string library;
    std::string file;
};

const std::vector<License> licenses = {
    {"ada", "ada.txt"},
    {"argparse", "argparse.txt"},
    {"base64", "base64.txt"},
    {"{fmt}", "fmt.txt"},
    {"GoogleTest", "googletest.txt"},
    {"HunSpell", "hunspell.txt"},
    {"LibBF", "libbf.txt"},
    {"MD4C", "md4c.txt"},
    {"opentelemetry", "opentelemetry.txt"},
    {"semver", "semver.txt"},
    {"TinyXML2", "tinyxml2.txt"},
    {"uri-template", "uri-template.txt"},
    {"utfcpp", "utfcpp.txt"},
    {"yajl", "yajl.txt"},
    {"libyaml", "libyaml.txt"},
};

TEST(Credits, NamesEachLibraryWithItsPage) {
    const Outcome outcome = Workspace().run({"credits"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, source("tests/golden/credits.txt"));
}

TEST(License, ListsTheNames) {
    const Outcome outcome = Workspace().run({"license", "--list"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, heading +
                               "ada, argparse, base64, {fmt}, GoogleTest, HunSpell, LibBF, MD4C, "
                               "opentelemetry, semver, TinyXML2, uri-template, utfcpp, yajl, libyaml\n");
}

TEST(License, PrintsTheTextOfOneLibraryOrOfAll) {
    const Workspace workspace;
    std::string all = heading;
    for (const License& license : licenses) {
        SCOPED_TRACE(license.library);
        const std::string text = std::string("\n").append(source("cli/licenses/" + license.file));
        const Outcome outcome = workspace.run({"license", "--library", license.library});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.out, text);
        all += license.library + text + "\n\n";
    }
    const Outcome outcome = workspace.run({"license"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, all);
}

TEST(License, ANameIsTakenToTheLetter) {
    for (const std::string name : {"hunspell", "fmt", ""}) {
        const Outcome outcome = Workspace().run({"license", "--library", name});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "No library with name " + name + " found.\n");
    }
}

TEST(About, AReportThatDoesNotGetOutIsAFailure) {
    for (const char* command : {"credits", "license"})
        EXPECT_EQ(Workspace().run({command}, "/dev/full").status, 1) << command;
}

} // namespace
} // namespace specloom::tests
