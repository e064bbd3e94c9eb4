#include "embedding_sample/sample_text.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::pair
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::embedding_sample {
namespace {

TEST(Embedding, takesSubFoldersInTheOrderOfTheirPaths) {
    std::vector<std::pair<std::string, std::string>> files;
    for (const EmbeddedFile& file : sampleTexts())
        files.emplace_back(file.name, file.content);
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"parts/deep/item.txt", "in parts"}, {"parts/item.txt", "\r\n\r\n"}, {"plain.txt", "one\r\ntwo\r\n"}};
    EXPECT_EQ(files, expected);
    EXPECT_EQ(sampleText("plain.txt"), "one\r\ntwo\r\n");
    EXPECT_EQ(sampleText("item.txt").data(), nullptr);
}

} // namespace
} // namespace specloom::embedding_sample
