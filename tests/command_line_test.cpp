#include <string> // std::string
#include <vector> // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workspace.h"

namespace specloom::tests {
namespace {

TEST(CommandLine, EndsInAStatusAndALine) {
    struct Row {
        std::vector<std::string> arguments;
        int status;
        std::string out;
    };
    const std::vector<Row> rows = {
        {{}, 255, ""},
        {{"--version"}, 0, "0.8.0\n"},
        {{"-v"}, 0, "0.8.0\n"},
        {{"format", "--version"}, 0, "1.0\n"},
        {{"server"}, 0, ""},
        {{"formt"}, 1, "Failed to parse 'formt', did you mean 'format'\n"},
        {{"--verbose"}, 1, "Unknown argument: --verbose\n"},
        {{"--config", "c.yaml", "format"}, 1, "Unknown argument: --config\n"},
        {{"format"}, 1, "files: 1 or more argument(s) expected. 0 provided.\n"},
        {{"format", "a.yaml", "--config"}, 1, "Too few arguments for '--config'.\n"},
        {{"format", "a.yaml", "--output", "b.yaml", "--output", "c.yaml"},
         1,
         "Duplicate argument --output\n"},
        {{"lint"}, 1, "files: 1 or more argument(s) expected. 0 provided.\n"},
        {{"lint", "--version"}, 0, "1.0\n"},
        {{"server", "a.yaml"}, 1, "Zero positional arguments expected\n"},
        {{"license", "--library"}, 1, "Too few arguments for '--library'.\n"},
    };
    const Workspace workspace;
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        const Outcome outcome = workspace.run(row.arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_EQ(outcome.out, row.out);
        EXPECT_EQ(outcome.err, "");
    }
}

TEST(CommandLine, HelpShowsWhatThereIs) {
    struct Row {
        std::vector<std::string> arguments;
        std::vector<std::string> parts; // layout is the argument parser's own
    };
    const std::vector<Row> rows = {
        {{"--help"},
         {"{credits,diff,format,license,lint,server}",
          "Show credits to 3rd party libraries used in this project.", "Format one or more OpenAPI files.",
          "Show licenses of 3rd party libraries used in this project.", "Starts mock server.",
          "Compares two OpenAPI files and prints the differences."}},
        {{"-h"}, {"-v, --version", "prints version information and exits"}},
        // Also where required arguments are missing.
        {{"format", "--help"},
         {"Usage: specloom format", "Format one or more OpenAPI files.", "FILES",
          "Path to OpenAPI files to format.", "--config CONFIG", "Path to the configuration file.",
          "--output OUTPUT", "Path to the output file or directory."}},
        {{"lint", "--help"},
         {"Usage: specloom lint", "Lint one or more OpenAPI files.", "--config CONFIG",
          "Path to the configuration file.", "--fix", "Automatically fixes problems where possible.",
          "--formatter", "Specifies the formatter", "stylish", "FILES", "Path to OpenAPI files to lint."}},
        {{"diff", "--help"},
         {"Usage: specloom diff", "--config", "--report", "Specifies what to print", "changelog",
          "--formatter", "Specifies the formatter", "stylish", "--update-version",
          "Updates the version of the OpenAPI file to the minimal suggested version.", "source_file",
          "Path to the original OpenAPI file.", "dest_file", "Path to final OpenAPI file."}},
        {{"license", "--help"},
         {"--list", "List all 3rd party libraries used in this project.", "--library",
          "Name of the library to show license for."}},
    };
    const Workspace workspace;
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.arguments));
        const Outcome outcome = workspace.run(row.arguments);
        EXPECT_EQ(outcome.status, 0);
        for (const std::string& part : row.parts)
            EXPECT_THAT(outcome.out, testing::HasSubstr(part));
        EXPECT_EQ(outcome.err, "");
    }
}

} // namespace
} // namespace specloom::tests
