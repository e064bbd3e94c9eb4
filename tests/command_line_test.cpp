#include "workspace.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

TEST(CommandLine, helpShowsWhatThereIs) {
    struct Row {
        std::vector<std::string> arguments;
        std::vector<std::string> parts; // layout is the argument parser's own
    };
    const std::vector<Row> rows = {
        {{"--help"},
         {"{credits,diff,format,generate,i18n,license,lint,server}",
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
        {{"i18n", "--help"},
         {"Usage: specloom i18n", "Extract i18n data from an OpenAPI spec.", "FILES",
          "Path to OpenAPI file to process.", "--output", "Path to extracted i18n literals.",
          "--drop-obsolete"}},
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
