#include "openapi_format/structure.h"

#include <set>         // std::set
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

} // namespace
} // namespace specloom::openapi_format
