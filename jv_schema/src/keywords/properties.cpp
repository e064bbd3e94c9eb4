#include "jv_schema/keywords/properties.h"

#include "jv_schema/compiler.h"
#include "jv_schema/evaluation.h"
#include "jv_schema/messages.h"
#include "jv_schema/pattern_site.h"

#include <bit>         // std::bit_ceil
#include <cstdint>     // std::uintptr_t
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv::schema {

namespace {

/// Nodes by the name of a property. Names of properties are kept once for the whole process, those of the
/// schema as well as those of instances, so that their addresses tell them apart.
class NodesByName {
  public:
    void reserve(std::size_t names) { slots_.resize(std::bit_ceil(names * 2 + 2)); }

    void add(std::string_view name, const Node& node) {
        std::size_t index = indexOf(name.data());
        while (slots_[index].name != nullptr)
            index = next(index);
        slots_[index] = {name.data(), &node};
    }

    [[nodiscard]] const Node* find(std::string_view name) const noexcept {
        for (std::size_t index = indexOf(name.data()); slots_[index].name != nullptr; index = next(index)) {
            if (slots_[index].name == name.data())
                return slots_[index].node;
        }
        return nullptr;
    }

  private:
    struct Slot {
        const char* name = nullptr;
        const Node* node = nullptr;
    };

    [[nodiscard]] std::size_t indexOf(const char* name) const noexcept {
        const auto address = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(name));
        return static_cast<std::size_t>(((address >> 3) * 0x9e3779b97f4a7c15) >> 32) & (slots_.size() - 1);
    }
    [[nodiscard]] std::size_t next(std::size_t index) const noexcept {
        return (index + 1) & (slots_.size() - 1);
    }

    std::vector<Slot> slots_; ///< open addressing; the size is a power of two
};

class Properties : public Keyword {
  public:
    explicit Properties(const Site& site) : Keyword(site.place, site.keyword, only(Kind::Object)) {
        const JV* properties = site.sibling("properties");
        names_.reserve(properties == nullptr ? 0 : properties->size());
        if (properties != nullptr) {
            site.require(*properties, Kind::Object);
            for (const Member member : properties->members())
                names_.add(member.key, site.compiler.nodeOf(*member.value));
        }
        if (const JV* patterns = site.sibling("patternProperties")) {
            site.require(*patterns, Kind::Object);
            for (const Member member : patterns->members())
                patterns_.push_back(
                    {compilePattern(site, member.key), member.key, &site.compiler.nodeOf(*member.value)});
        }
        if (const JV* additional = site.sibling("additionalProperties"))
            additional_ = &site.compiler.nodeOf(*additional);
    }

    [[nodiscard]] bool evaluate(const JV& instance, Evaluation& evaluation) const override {
        bool valid = true;
        for (const Member member : instance.members()) {
            if (!evaluateMember(member, evaluation)) {
                valid = false;
                if (!evaluation.explains())
                    break;
            }
        }
        return valid;
    }

  private:
    struct ByPattern {
        regex::Pattern matcher;
        std::string_view source;
        const Node* node;
    };

    [[nodiscard]] bool evaluateMember(const Member& member, Evaluation& evaluation) const {
        bool valid = true;
        const Node* named = names_.find(member.key);
        bool known = named != nullptr;
        if (known)
            valid = evaluation.applyTo(*named, *member.value, member.key);
        for (const ByPattern& pattern : patterns_) {
            if (!matches(pattern.matcher, pattern.source, member.key, *this, evaluation))
                continue;
            known = true;
            valid &= evaluation.applyTo(*pattern.node, *member.value, member.key);
        }
        if (!known) {
            if (additional_ == nullptr)
                return true;
            valid = evaluation.applyTo(*additional_, *member.value, member.key);
        }
        evaluation.mark(*member.value);
        return valid;
    }

    NodesByName names_;
    std::vector<ByPattern> patterns_;
    const Node* additional_ = nullptr;
};

} // namespace

std::unique_ptr<Keyword> makeProperties(const Site& site) {
    for (const std::string_view earlier : {"properties", "patternProperties"}) {
        if (site.keyword == earlier)
            break;
        if (site.sibling(earlier) != nullptr)
            return nullptr;
    }
    return std::make_unique<Properties>(site);
}

} // namespace specloom::jv::schema
