#include "jv/sorted_properties.h"

#include "foundation/text_tables.h"

#include <algorithm> // std::ranges::sort

namespace specloom::jv {

namespace {

std::vector<Member> naturalMembers(const JV* object) {
    const Members members = object->members();
    return {members.begin(), members.end()};
}

} // namespace

SortedProperties::SortedProperties(const JV* object)
    : natural_(true), object_(object), members_(naturalMembers(object)) {}

SortedProperties::SortedProperties(const JV* object, std::span<const std::string_view> order)
    : natural_(false), object_(object) {
    // The rank of a key is its first place in the list. A stable partition of the byte-wise order gives the
    // order wanted without comparing keys again.
    TextViewMap<std::size_t> ranks;
    ranks.reserve(order.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        ranks.emplace(order[i], i);

    struct Ranked {
        std::size_t rank;
        Member member;
    };
    std::vector<Ranked> listed;
    std::vector<Member> others;
    for (const Member member : object->members()) {
        if (const auto rank = ranks.find(member.key); rank != ranks.end())
            listed.push_back({rank->second, member});
        else
            others.push_back(member);
    }
    std::ranges::sort(listed, {}, &Ranked::rank);

    members_.reserve(listed.size() + others.size());
    for (const Ranked& ranked : listed)
        members_.push_back(ranked.member);
    members_.insert(members_.end(), others.begin(), others.end());
}

SortedProperties::SortedProperties(const JV* object, std::vector<Member> members)
    : natural_(false), object_(object), members_(std::move(members)) {}

std::vector<std::string_view> SortedProperties::keys() const {
    std::vector<std::string_view> keys;
    keys.reserve(members_.size());
    for (const Member& member : members_)
        keys.push_back(member.key);
    return keys;
}

} // namespace specloom::jv
