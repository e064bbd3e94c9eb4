#pragma once

#include "jv_generator/demand.h"
#include "jv_generator/merged_schema.h"

#include <cstddef>          // std::size_t
#include <cstdint>          // std::uint64_t
#include <initializer_list> // std::initializer_list
#include <map>              // std::map
#include <memory>           // std::unique_ptr
#include <string>           // std::string
#include <string_view>      // std::string_view
#include <vector>           // std::vector

namespace specloom::jv_generator {

/// A pattern, and the schema of the bundle that has it.
struct PatternPlace {
    std::string_view pattern;
    const jv::JV* schema;
};

/// Makes the parts of a generator, each when it is first asked for.
class GenFactory {
  public:
    /// Both outlive the factory and its demands.
    GenFactory(SchemaGraph& graph, const GeneratorConfig& config) : graph_(&graph), config_(&config) {}

    [[nodiscard]] SchemaGraph& graph() const noexcept { return *graph_; }
    [[nodiscard]] const GeneratorConfig& config() const noexcept { return *config_; }
    /// The demand that a value fits these schemas; the same for the same ones.
    [[nodiscard]] Demand& demand(std::vector<SchemaId> schemas);
    /// Makes a demand a choice, a part, or impossible.
    void build(Demand& demand);
    /// Finds out whether, how high and how large values can be, by the least that they must have.
    void measure(Demand& demand);

    [[nodiscard]] Admission admission(const Demand& demand);

    [[nodiscard]] std::size_t demandCount() const noexcept { return demands_.size(); }

    /// The schemas of the bundle whose patterns parts work with, in the order in which these were made.
    [[nodiscard]] const std::vector<PatternPlace>& patterns() const noexcept { return patterns_; }

    /// The right value of the discriminator's property for the schema of a demand; nothing without one.
    struct Discriminating {
        std::string_view property;
        std::string value;
    };
    [[nodiscard]] std::vector<Discriminating> discriminating(const Demand& demand, const Closure& closure);

  private:
    [[nodiscard]] bool close(Demand& demand, Closure& closure);
    const SchemaNode* extend(Closure& closure, std::size_t from);
    [[nodiscard]] bool settleChoices(Demand& demand, Closure& closure, bool& hasGrown);
    [[nodiscard]] bool tellApart(SchemaId id, const SchemaNode& node, Closure& closure);
    struct OpenChoice {
        std::vector<SchemaId> alternatives; ///< that can hold, at first sight
        bool prefersFirst;
    };
    void choose(Demand& demand, const OpenChoice& choice);
    /// What the schemas of a closure say that contradicts alternatives at first sight.
    struct Held {
        ValueKinds kinds = value_kind::all;
        std::unordered_set<std::string_view> required;
    };
    [[nodiscard]] std::vector<SchemaId> viable(const std::vector<SchemaId>& alternatives,
                                               const Closure& closure, const Held& held);
    void makePart(Demand& demand, const Closure& closure);
    [[nodiscard]] bool splitKinds(Demand& demand, const MergedSchema& schema);
    void makeKind(Demand& demand, const Closure& closure, MergedSchema schema);
    void makeBoolean(Demand& demand, const MergedSchema& schema);
    void makeNumber(Demand& demand, MergedSchema schema);
    void makeString(Demand& demand, MergedSchema schema);
    void makeArray(Demand& demand, MergedSchema schema);
    void makeObject(Demand& demand, const Closure& closure, MergedSchema schema);
    [[nodiscard]] Demand& itemDemand(const MergedSchema& schema, std::size_t index);
    struct Exploration;
    void explore(Exploration& exploration);
    [[nodiscard]] static bool widen(const Exploration& exploration);

    SchemaGraph* graph_;
    const GeneratorConfig* config_;
    std::vector<PatternPlace> patterns_;
    std::map<std::vector<SchemaId>, std::unique_ptr<Demand>> demands_;
};

/// Makes a demand impossible.
void refuse(Demand& demand, const jv::JV* schema, std::string_view reason);

} // namespace specloom::jv_generator
