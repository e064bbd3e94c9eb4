#include <filesystem> // std::filesystem::canonical
#include <string>     // std::string
#include <vector>     // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "workspace.h"

namespace specloom::tests {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* finding = "Info summary is missing or empty";
constexpr const char* tides = R"(openapi: 3.1.0
info: {title: Tides, version: 1.0.0}
components:
  schemas:
    Height: {type: number, format: metres}
paths: {}
)";
constexpr const char* plainTides = "{openapi: 3.1.0, info: {title: Tides, version: 1.0.0}, paths: {}}";

/// One run of `specloom lint` with a configuration.
struct LintRow {
    std::string what;
    std::string config; // the text of c.yaml
    std::vector<std::string> arguments;
    int status;
    testing::Matcher<std::string> out;
};

TEST(Lint, FollowsItsConfiguration) {
    const std::string head = "version: \"1.0\"\n";
    const std::string formats = "openapi: {custom_formats: [{name: metres, type: number}]}\n";
    const std::string lint = "commands: {lint: {rules: {info-defined: error}}}\n";
    const std::vector<std::string> configured = {"--config", "c.yaml", "tides.yaml"};
    const std::vector<LintRow> rows = {
        {"recommended by default", "", {"plain.yaml"}, 0, HasSubstr(finding)},
        {"an unknown format", "", {"tides.yaml"}, 1, HasSubstr("Unknown format: metres at (4, ")},
        {"no section", head + formats, configured, 0, Not(HasSubstr(finding))},
        {"one rule", head + formats + lint, configured, 0, HasSubstr(finding)},
        {"no formats", head + lint, configured, 1, HasSubstr("Unknown format: metres at (4, ")},
        {"formats that cannot be used", head + "openapi: {custom_formats: [{name: metres}]}\n", configured, 1,
         "Required property 'type' is missing.\n"},
        {"no object", head + "commands: {lint: recommended}", configured, 1,
         "An object is expected for 'lint'\n"},
        {"no array", head + "commands: {lint: {extends: recommended}}", configured, 1,
         "An array value is expected for 'extends'.\n"},
        {"an unknown ruleset", head + formats + "commands: {lint: {extends: [strct, recommended]}}",
         configured, 0,
         testing::AllOf(testing::StartsWith("Cannot load ruleset: Ruleset not found: strct\n"),
                        HasSubstr(finding))},
        {"an unknown rule", head + "commands: {lint: {rules: {info: error}}}", configured, 1,
         "Cannot load rule: Rule not found: info\nInvalid rule configuration\n"},
        {"an unknown report", "", {"--formatter", "xml", "plain.yaml"}, 1, "Formatter not found: xml\n"},
        {"no configuration", "", {"--config", "d.yaml", "plain.yaml"}, 1, "Cannot open file: d.yaml\n"},
        {"no document", "", {"d.yaml"}, 1, "Cannot open file: d.yaml\n"},
    };
    for (const LintRow& row : rows) {
        SCOPED_TRACE(row.what);
        const Workspace workspace;
        workspace.write("tides.yaml", tides);
        workspace.write("plain.yaml", plainTides);
        workspace.write("c.yaml", row.config);
        std::vector<std::string> arguments = {"lint"};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        const Outcome outcome = workspace.run(arguments);
        EXPECT_EQ(outcome.status, row.status);
        EXPECT_THAT(outcome.out, row.out);
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(workspace.read("tides.yaml"), tides);
    }
}

TEST(Lint, ReportsOnAllFilesSoFar) {
    const Workspace workspace;
    workspace.write("a.yaml", plainTides);
    workspace.write("b.yaml", plainTides);
    const Outcome outcome = workspace.run({"lint", "a.yaml", "b.yaml"});
    EXPECT_EQ(outcome.status, 0);
    const auto named = [&](const char* file) {
        const std::string name = std::filesystem::canonical(workspace.path(file)).string() + "\n";
        std::size_t count = 0;
        for (std::size_t at = outcome.out.find(name); at != std::string::npos;
             at = outcome.out.find(name, at + 1))
            ++count;
        return count;
    };
    EXPECT_EQ(named("a.yaml"), 2u);
    EXPECT_EQ(named("b.yaml"), 1u);
}

TEST(Lint, WritesBackOnlyWhenItFixes) {
    const Workspace workspace;
    workspace.write("a.yaml", plainTides);
    ASSERT_EQ(workspace.run({"lint", "a.yaml"}).status, 0);
    EXPECT_EQ(workspace.read("a.yaml"), plainTides);
    ASSERT_EQ(workspace.run({"lint", "--fix", "a.yaml"}).status, 0);
    EXPECT_EQ(workspace.read("a.yaml"),
              "openapi: 3.1.0\ninfo:\n  title: Tides\n  version: 1.0.0\npaths: {}\n");
}

} // namespace
} // namespace specloom::tests
