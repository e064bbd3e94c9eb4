#include "test_support/corpora.h"
#include "workspace.h"

#include <filesystem> // std::filesystem::exists
#include <string>     // std::string

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::tests {
namespace {

/// The first ```yaml block of `text` at or behind `from`, which moves behind it.
std::string yamlBlock(const std::string& text, std::size_t& from) {
    const std::string opening = "```yaml\n";
    const std::size_t begin = text.find(opening, from) + opening.size();
    from = text.find("```", begin);
    return text.substr(begin, from - begin);
}

TEST(Format, doesWhatItsDocumentationShows) {
    const std::string page = test_support::fileBytes(SPECLOOM_SOURCE_DIR "/docs/commands.md");
    std::size_t place = page.find("For instance, this document");
    ASSERT_NE(place, std::string::npos);
    const std::string before = yamlBlock(page, place);
    const std::string after = yamlBlock(page, place);
    const Workspace workspace;
    workspace.write("api.yaml", before);
    EXPECT_EQ(workspace.run({"format", "api.yaml"}).status, 0);
    EXPECT_EQ(workspace.read("api.yaml"), after);
}

TEST(Format, createsNoFileForANumberThatJsonDoesNotTake) {
    const Workspace workspace;
    workspace.write("api.yaml", "openapi: 3.1.0\nx-n: [1, 123456789012345678901]\n");
    workspace.write("there.json", "{}");
    for (const char* target : {"new.json", "there.json"}) {
        const Outcome outcome = workspace.run({"format", "--output", target, "api.yaml"});
        EXPECT_EQ(outcome.status, 128 + 6) << target; // SIGABRT
        EXPECT_THAT(outcome.err,
                    testing::HasSubstr("(the number 123456789012345678901 at '/x-n/1' cannot be"));
    }
    EXPECT_FALSE(std::filesystem::exists(workspace.path("new.json")));
    EXPECT_EQ(workspace.read("there.json"), "{}");
}

} // namespace
} // namespace specloom::tests
