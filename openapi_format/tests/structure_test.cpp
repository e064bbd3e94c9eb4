#include "openapi_format/configuration.h"
#include "openapi_format/structure.h"

#include <cstddef>     // std::size_t
#include <fstream>     // std::ifstream
#include <set>         // std::set
#include <string>      // std::getline, std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

/// The last column of the documentation for an order.
std::string documented(const PropertyOrder& order) {
    if (!order.isSet())
        return "as in the source";
    if (order.mode() != PropertyOrder::Mode::Fixed)
        return "sorted";
    std::string text;
    for (const std::string& key : order.keys())
        text.append(text.empty() ? "`" : ", `").append(key).append("`");
    return text;
}

TEST(Structure, isDocumented) {
    const Configuration recommended = Configuration::recommended();
    std::ifstream stream(SPECLOOM_SOURCE_DIR "/docs/format-kinds.md");
    std::vector<std::string> rows;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("| `"))
            rows.push_back(line);
    }
    ASSERT_EQ(rows.size(), objectKinds().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const ObjectKind& kind = objectKinds()[i];
        EXPECT_TRUE(rows[i].starts_with("| `" + std::string(kind.name) + "` |")) << rows[i];
        EXPECT_TRUE(rows[i].ends_with("| " + documented(recommended.orderOf(kind.name)) + " |")) << rows[i];
    }
}

} // namespace
} // namespace specloom::openapi_format
