#pragma once

#include "jv_generator/formats.h"
#include "jv_generator/schema_graph.h"

#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_set> // std::unordered_set
#include <vector>        // std::vector

namespace specloom::jv_generator {

/// The schemas that hold for one value at once: those that are asked for, and what they refer to, require by
/// `allOf`, and have chosen. Each stands there once.
struct Closure {
    std::vector<SchemaId> schemas;
    std::unordered_set<SchemaId> set;

    bool add(SchemaId id) {
        if (!set.insert(id).second)
            return false;
        schemas.push_back(id);
        return true;
    }
    [[nodiscard]] bool has(SchemaId id) const { return set.contains(id); }
};

struct Containing {
    SchemaId schema;
    std::uint64_t min;
    std::uint64_t max;
};

/// `unevaluatedProperties` or `unevaluatedItems`: what it says of what the schemas in reach do not.
struct Unevaluated {
    SchemaId schema;
    std::vector<SchemaId> reach;
};

/// What the schemas of a closure say together.
struct MergedSchema {
    MergedSchema(SchemaGraph& graph, const Closure& closure);

    /// Whether a text, number, boolean or null fits. Arrays and objects always do here.
    [[nodiscard]] bool admits(SchemaGraph& graph, const jv::JV& value) const;
    [[nodiscard]] bool admitsText(SchemaGraph& graph, std::string_view text) const;
    [[nodiscard]] bool admitsNumber(const number::Number& value) const;

    std::vector<const SchemaNode*> nodes;
    ValueKinds kinds = value_kind::all;
    ValueKinds hints = 0;
    bool hasEnumeration = false;
    std::vector<const jv::JV*> candidates;
    std::vector<const jv::JV*> excluded;
    std::vector<Limit> lower;
    std::vector<Limit> upper;
    std::vector<number::Number> divisors;
    std::vector<number::Number> nonDivisors;
    std::uint64_t minLength = 0;
    std::uint64_t maxLength = UINT64_MAX;
    std::vector<std::string_view> patterns;
    std::vector<std::string_view> otherThanPatterns;
    std::vector<std::string_view> formats;
    std::vector<TextCheck> checks;      ///< of these formats
    std::vector<TextCheck> otherChecks; ///< of those that texts must not have
    std::string_view encoding;
    std::uint64_t minItems = 0;
    std::uint64_t maxItems = UINT64_MAX;
    bool uniqueItems = false;
    bool duplicateItems = false;
    std::vector<Containing> containing;
    std::uint64_t minProperties = 0;
    std::uint64_t maxProperties = UINT64_MAX;
    std::vector<std::string_view> required; ///< in byte-wise order, each once
    std::vector<Unevaluated> unevaluatedItems;
    std::vector<Unevaluated> unevaluatedProperties;
    const jv::JV* place = nullptr; ///< the schema to name when none fits

  private:
    void addFormats(const SchemaNode& node);
};

/// What a demand asks of a text, number, boolean or null, leaving choices aside.
class Admission {
  public:
    /// The graph outlives it.
    Admission(SchemaGraph& graph, const Closure& closure, bool isNever)
        : graph_(&graph), schema_(graph, closure), isNever_(isNever) {}

    [[nodiscard]] bool admits(const jv::JV& value) const;

  private:
    SchemaGraph* graph_;
    MergedSchema schema_;
    bool isNever_;
};

} // namespace specloom::jv_generator
