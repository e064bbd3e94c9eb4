#include "test_support/corpora.h"
#include "workspace.h"

#include <string> // std::string

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

} // namespace
} // namespace specloom::tests
