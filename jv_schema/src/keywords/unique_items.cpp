#include "jv_schema/keywords/unique_items.h"

#include "jv/equal_values.h"
#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"

#include <algorithm> // std::minmax, std::sort
#include <optional>  // std::optional
#include <span>      // std::span
#include <utility>   // std::pair
#include <vector>    // std::vector

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

using Duplicate = std::optional<std::pair<std::size_t, std::size_t>>;

constexpr std::size_t fewItems = 16; // are compared each with each

[[nodiscard]] Duplicate compareAll(std::span<const JV* const> items) {
    for (std::size_t i = 1; i < items.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (equalValues(*items[j], *items[i]))
                return std::pair(j, i);
        }
    }
    return std::nullopt;
}

[[nodiscard]] Duplicate compareHashed(std::span<const JV* const> items, Evaluation& evaluation) {
    std::vector<std::pair<std::uint64_t, std::size_t>> hashes;
    hashes.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        std::size_t visited = 0;
        hashes.emplace_back(hashOfValue(*items[i], visited), i);
        evaluation.spend(visited);
    }
    std::sort(hashes.begin(), hashes.end());
    for (std::size_t i = 0; i < hashes.size(); ++i) {
        for (std::size_t j = i + 1; j < hashes.size() && hashes[j].first == hashes[i].first; ++j) {
            evaluation.spend(1);
            if (equalValues(*items[hashes[i].second], *items[hashes[j].second]))
                return std::pair(hashes[i].second, hashes[j].second);
        }
    }
    return std::nullopt;
}

class UniqueItems : public Keyword {
  public:
    explicit UniqueItems(const Site& site) : Keyword(site.place, site.keyword, only(Kind::Array)) {}

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        const auto items = instance.elements();
        const Duplicate duplicate =
            items.size() <= fewItems ? compareAll(items) : compareHashed(items, evaluation);
        return !duplicate || evaluation.fail(*this, [&] {
            return fmt::format(message::duplicate, duplicate->first, duplicate->second);
        });
    }
};

} // namespace

std::unique_ptr<Keyword> makeUniqueItems(const Site& site) {
    site.require(Kind::Boolean);
    return site.value.boolean() ? std::make_unique<UniqueItems>(site) : nullptr;
}

} // namespace specloom::jv::schema
