#include "foundation/registry.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom {
namespace {

using MakeText = Maker<std::string, const char*>;

TEST(Registry, findsByNameAndKeepsTheOrderOfItsRows) {
    static constexpr Registry registry({MakeText::of<std::string>("b"), MakeText::of<std::string>("a")});
    EXPECT_EQ(registry.names(), (std::vector<std::string_view>{"b", "a"}));
    EXPECT_EQ(*registry.get("a", "{}").make("text"), "text");
    EXPECT_EQ(registry.find(""), nullptr);
}

TEST(Registry, refusesANameThatStandsTwice) {
    EXPECT_THROW(Registry({MakeText::of<std::string>("a"), MakeText::of<std::string>("a")}),
                 std::logic_error);
}

} // namespace
} // namespace specloom
