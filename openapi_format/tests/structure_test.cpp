#include "openapi_format/structure.h"

#include "openapi_format/configuration.h"

#include <cstddef>     // std::size_t
#include <fstream>     // std::ifstream
#include <set>         // std::set
#include <string>      // std::getline, std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

TEST(Structure, everyKindIsReachedFromTheRoot) {
    std::set<std::string_view> reached;
    std::vector<std::string_view> open{"openapi"};
    while (!open.empty()) {
        const std::string_view name = open.back();
        open.pop_back();
        if (!reached.insert(name).second)
            continue;
        const ObjectKind* kind = findObjectKind(name);
        ASSERT_NE(kind, nullptr) << name;
        for (const Place& place : kind->places)
            open.push_back(place.kind);
        if (!kind->entries.kind.empty())
            open.push_back(kind->entries.kind);
    }
    reached.insert("reference"); // decided by what is in the object
    std::set<std::string_view> all;
    for (const ObjectKind& kind : objectKinds())
        EXPECT_TRUE(all.insert(kind.name).second) << kind.name << " stands there twice";
    EXPECT_EQ(reached, all);
}

TEST(Structure, noMemberIsGivenTwice) {
    for (const ObjectKind& kind : objectKinds()) {
        std::set<std::string_view> members;
        for (const Place& place : kind.places)
            EXPECT_TRUE(members.insert(place.member).second) << kind.name << "." << place.member;
    }
}

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
