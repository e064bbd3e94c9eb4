// Which schemas accept everything, or nothing, by their shape alone.

#include "openapi/schema.h"

#include <algorithm> // std::all_of, std::any_of

namespace specloom::openapi {

namespace {

/// Follows sub-schemas to an answer. Schemas may refer to themselves and to each other at will, so the number
/// of schemas looked at is bounded; once it is used up, every answer is no.
class TruthSearch {
  public:
    [[nodiscard]] bool isTrue(const Schema& schema) {
        return enter(schema) && all(schema.allOf(), true) &&
               (schema.anyOf().empty() || any(schema.anyOf(), true)) &&
               (schema.oneOf().empty() || (schema.oneOf().size() == 1 && all(schema.oneOf(), true))) &&
               (schema.notSchema() == nullptr || isFalse(*schema.notSchema()));
    }

    [[nodiscard]] bool isFalse(const Schema& schema) {
        return enter(schema) &&
               (any(schema.allOf(), false) || refusesAll(schema.anyOf()) || refusesAll(schema.oneOf()) ||
                (schema.notSchema() != nullptr && isTrue(*schema.notSchema())));
    }

  private:
    /// Whether `schema` has nothing but the keywords that are followed, so that a boolean could stand for it.
    [[nodiscard]] bool enter(const Schema& schema) {
        if (budget_ == 0)
            return false;
        --budget_;
        using enum SchemaKeyword;
        std::size_t followed = 0;
        for (const SchemaKeyword keyword : {AllOf, AnyOf, OneOf, Not})
            followed += schema.has(keyword) ? 1 : 0;
        return schema.types().empty() && schema.extensions().empty() && schema.keywordCount() == followed;
    }

    [[nodiscard]] bool is(const NodePointer& node, bool wanted) {
        const auto* schema = resolveTo<Schema>(node.get());
        return wanted ? isTrue(*schema) : isFalse(*schema);
    }
    [[nodiscard]] bool all(const NodeList& list, bool wanted) {
        return std::all_of(list.begin(), list.end(),
                           [&](const NodePointer& node) { return is(node, wanted); });
    }
    [[nodiscard]] bool any(const NodeList& list, bool wanted) {
        return std::any_of(list.begin(), list.end(),
                           [&](const NodePointer& node) { return is(node, wanted); });
    }
    [[nodiscard]] bool refusesAll(const NodeList& list) { return !list.empty() && all(list, false); }

    int budget_ = 256;
};

} // namespace

bool Schema::isAlwaysTrue() const {
    return TruthSearch().isTrue(*this);
}

bool Schema::isAlwaysFalse() const {
    return TruthSearch().isFalse(*this);
}

} // namespace specloom::openapi
