#include "jv_schema/keywords/required.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "jv_schema/property_name.h"

#include <algorithm>   // std::ranges::all_of, std::ranges::sort, std::unique
#include <cstddef>     // std::size_t
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/core.h>

namespace specloom::jv::schema {

namespace {

class Required : public Keyword {
  public:
    explicit Required(const Site& site) : Keyword(site.place, site.keyword, only(Kind::Object)) {
        site.require(Kind::Array);
        for (const JV* name : site.value.elements()) {
            site.require(*name, Kind::String);
            names_.emplace_back(name->text());
        }
        sorted_ = names_;
        std::ranges::sort(sorted_, {}, &PropertyName::text);
        const auto isSame = [](const PropertyName& a, const PropertyName& b) { return a.text() == b.text(); };
        sorted_.erase(std::unique(sorted_.begin(), sorted_.end(), isSame), sorted_.end());
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        if (!evaluation.explains())
            return hasAll(instance);
        bool valid = true;
        for (const PropertyName& name : names_) {
            if (name.isIn(instance))
                continue;
            valid = evaluation.fail(
                *this, [&] { return fmt::format(message::missingProperty, quoted(name.text())); });
        }
        return valid;
    }

  private:
    [[nodiscard]] bool hasAll(const JV& instance) const {
        constexpr std::size_t membersOfEach =
            8; // members for a name; of more it is faster to look for the names
        if (instance.size() < sorted_.size())
            return false;
        if (instance.size() / membersOfEach > sorted_.size())
            return std::ranges::all_of(sorted_,
                                       [&](const PropertyName& name) { return name.isIn(instance); });
        // Both are in the same order.
        auto next = sorted_.begin();
        for (const Member member : instance.members()) {
            if (next == sorted_.end())
                break;
            next += member.key.data() == next->text().data() ? 1 : 0;
        }
        return next == sorted_.end();
    }

    std::vector<PropertyName> names_;
    std::vector<PropertyName> sorted_; ///< byte-wise, each once
};

class DependentRequired : public Keyword {
  public:
    explicit DependentRequired(const Site& site) : Keyword(site.place, site.keyword, only(Kind::Object)) {
        site.require(Kind::Object);
        for (const Member member : site.value.members()) {
            site.require(*member.value, Kind::Array);
            for (const JV* name : member.value->elements()) {
                site.require(*name, Kind::String);
                pairs_.push_back({member.key, name->text()});
            }
        }
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        bool valid = true;
        for (const Pair& pair : pairs_) {
            if (instance.get(pair.present) == nullptr || instance.get(pair.needed) != nullptr)
                continue;
            valid = evaluation.fail(*this, [&] {
                return fmt::format(message::missingDependency, quoted(pair.needed), quoted(pair.present));
            });
            if (!evaluation.explains())
                return false;
        }
        return valid;
    }

  private:
    struct Pair {
        std::string_view present;
        std::string_view needed;
    };
    std::vector<Pair> pairs_;
};

} // namespace

std::unique_ptr<Keyword> makeRequired(const Site& site) {
    return std::make_unique<Required>(site);
}

std::unique_ptr<Keyword> makeDependentRequired(const Site& site) {
    return std::make_unique<DependentRequired>(site);
}

} // namespace specloom::jv::schema
