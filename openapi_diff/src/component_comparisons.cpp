#include "openapi_diff/component_comparisons.h"

#include "foundation/hash.h"
#include "openapi/openapi.h"
#include "openapi_diff/diffs/components_diff.h"
#include "openapi_diff/diffs/reference_diff.h"

#include <algorithm> // std::any_of, std::reverse
#include <utility>   // std::exchange, std::move

namespace specloom::openapi_diff {
namespace {

using openapi::Components;
using openapi::ComponentSection;
using openapi::Node;
using openapi::Reference;

template <typename Use>
void forEachSection(const Components& components, Use use) {
    for (std::size_t i = 0; i < openapi::componentSectionCount; ++i)
        use(components.section(static_cast<ComponentSection>(i)), static_cast<ComponentSection>(i));
}

bool holdsReferences(const Components& components) {
    bool found = false;
    forEachSection(components, [&](const openapi::NamedNodes& section, ComponentSection) {
        found = found || std::any_of(section.begin(), section.end(), [](const auto& entry) {
                    return entry.value->type() == openapi::NodeType::Reference;
                });
    });
    return found;
}

/// The component that holds a node; null when none does.
const Node* componentAround(const Node& node) {
    for (const Node* inner = &node; inner->parent() != nullptr; inner = inner->parent())
        if (inner->parent()->type() == openapi::NodeType::Components)
            return inner;
    return nullptr;
}

/// Puts components behind those that they refer to, as far as circles allow.
class ReferenceOrder {
  public:
    explicit ReferenceOrder(const Components& components) : seen_(components.indexLimit()) {
        forEachSection(components, [&](const openapi::NamedNodes& section, ComponentSection) {
            for (const auto& entry : section)
                walk(*entry.value);
        });
        std::reverse(order_.begin(), order_.end());
    }

    [[nodiscard]] const std::vector<const Node*>& nodes() const noexcept { return order_; }

  private:
    struct Frame {
        const Node* component;
        const Reference* next; ///< to the component
    };

    /// Depth first from a component to those that refer to it: one is finished after all of these.
    void walk(const Node& start) {
        enter(start);
        while (!open_.empty()) {
            Frame& top = open_.back();
            if (top.next == nullptr) {
                order_.push_back(top.component);
                open_.pop_back();
                continue;
            }
            const Reference& reference = *std::exchange(top.next, top.next->nextReference());
            if (const Node* user = componentAround(reference); user != nullptr)
                enter(*user);
        }
    }
    void enter(const Node& component) {
        if (seen_[component.index()])
            return;
        seen_[component.index()] = true;
        open_.push_back({&component, component.firstReference()});
    }

    std::vector<bool> seen_; ///< by index of the node
    std::vector<Frame> open_;
    std::vector<const Node*> order_;
};

/// The entry of the components that a reference names; what it refers to where that cannot be found.
const Node* entryOf(const Reference& reference, std::string_view name) {
    const auto section = componentSectionOf(reference.target()->type());
    const Node* entry = section ? documentOf(reference).components().section(*section).find(name) : nullptr;
    return entry == nullptr ? reference.target() : entry;
}

} // namespace

std::size_t ComponentComparisons::PairHash::operator()(const Pair& pair) const noexcept {
    const auto number = [](const Node* node) {
        return static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(node)) * fnvPrime;
    };
    return static_cast<std::size_t>(combine(number(pair.source), number(pair.destination)));
}

void ComponentComparisons::compareComponents(const Components& source, const Components& destination) {
    hasAliases_ = holdsReferences(source) || holdsReferences(destination);
    std::unordered_map<const Node*, const Node*, openapi::NodeHash> partners; // by node of the destination
    forEachSection(destination, [&](const openapi::NamedNodes& section, ComponentSection which) {
        partners.reserve(partners.size() + section.size());
        for (const auto& entry : section)
            if (const Node* partner = source.section(which).find(entry.name()); partner != nullptr)
                partners.emplace(entry.value.get(), partner);
    });
    units_.reserve(partners.size());
    const ReferenceOrder order(destination);
    for (const Node* component : order.nodes())
        if (const auto partner = partners.find(component); partner != partners.end())
            (void)unitOf({partner->second, component}, {});
    settle();
}

const Comparison& ComponentComparisons::ofComponents(const Node& source, const Node& destination) {
    const Unit& unit = unitOf({&source, &destination}, {});
    settle();
    return unit.comparison;
}

void ComponentComparisons::include(const Node& source, const Node& destination) {
    const Pair targets = targetsOf(source, destination);
    if (targets.source == nullptr || targets.destination == nullptr)
        return;
    if (!units_.contains(targets) && !afford(targets))
        return;
    const Pair place{&source, &destination};
    Unit& unit = unitOf(targets, place);
    if (evaluated_ == nullptr)
        settle();
    else if (unit.dependents.empty() || unit.dependents.back() != evaluated_)
        unit.dependents.push_back(evaluated_);
    context_.include(unit.comparison, unit.place == place);
}

bool ComponentComparisons::afford(const Pair& nodes) {
    if (!budget_)
        budget_ = comparisonsOfAll * (valuesIn(*nodes.source->root()) + valuesIn(*nodes.destination->root()));
    const std::size_t cost = valuesIn(*nodes.source) + valuesIn(*nodes.destination);
    if (cost > *budget_)
        return false;
    *budget_ -= cost;
    return true;
}

std::size_t ComponentComparisons::valuesIn(const Node& node) {
    const auto [size, isNew] = sizes_.try_emplace(&node, 1);
    if (!isNew || node.source() == nullptr)
        return size->second;
    std::vector<const jv::JV*> open{node.source()};
    for (; !open.empty(); ++size->second) {
        const jv::JV& value = *open.back();
        open.pop_back();
        if (value.isArray())
            open.insert(open.end(), value.elements().begin(), value.elements().end());
        else if (value.isObject())
            for (const jv::Member& member : value.members())
                open.push_back(member.value);
    }
    return size->second;
}

/// Two references of one name lead to the components of that name, be they references again; all others to
/// the objects at the end.
ComponentComparisons::Pair ComponentComparisons::targetsOf(const Node& source,
                                                           const Node& destination) const {
    const Reference* before = asReference(&source);
    const Reference* after = asReference(&destination);
    const Pair resolved{source.resolve(), destination.resolve()};
    if (!hasAliases_ || before == nullptr || after == nullptr || resolved.source == nullptr ||
        resolved.destination == nullptr)
        return resolved;
    const std::string_view name = targetName(*before);
    if (name != targetName(*after))
        return resolved;
    return {entryOf(*before, name), entryOf(*after, name)};
}

ComponentComparisons::Unit& ComponentComparisons::unitOf(const Pair& nodes, const Pair& place) {
    const auto [entry, isNew] = units_.try_emplace(nodes, Unit{.nodes = nodes, .place = place});
    Unit& unit = entry->second;
    if (isNew) {
        // Components of one name come in the order of their references; others are met by those that depend
        // on them.
        unit.order = place == Pair{} ? ++highestOrder_ : --lowestOrder_;
        enqueue(unit);
    }
    return unit;
}

void ComponentComparisons::enqueue(Unit& unit) {
    if (std::exchange(unit.isWaiting, true))
        return;
    if (!unit.isMade)
        fresh_.push_back(&unit);
    else if (unit.order > position_)
        round_.push(&unit);
    else
        nextRound_.push_back(&unit);
}

ComponentComparisons::Unit* ComponentComparisons::nextWaiting() {
    if (!fresh_.empty()) {
        Unit* unit = fresh_.front();
        fresh_.pop_front();
        return unit;
    }
    if (round_.empty())
        for (Unit* unit : std::exchange(nextRound_, {}))
            round_.push(unit);
    if (round_.empty()) {
        position_ = std::numeric_limits<std::int64_t>::min();
        return nullptr;
    }
    Unit* unit = round_.top();
    round_.pop();
    position_ = unit->order;
    return unit;
}

void ComponentComparisons::settle() {
    while (Unit* unit = nextWaiting())
        evaluate(*unit);
}

void ComponentComparisons::evaluate(Unit& unit) {
    const Pair& nodes = unit.nodes;
    unit.isWaiting = false;
    unit.isMade = true;
    evaluated_ = &unit;
    Comparison found = context_.collect(*nodes.source, *nodes.destination,
                                        [&] { diffComponents(nodes.source, nodes.destination, context_); });
    evaluated_ = nullptr;
    const bool isWorse = found.level > unit.comparison.level || found.weight > unit.comparison.weight ||
                         (unit.comparison.changes.empty() && !found.changes.empty());
    unit.comparison = std::move(found);
    if (isWorse)
        for (Unit* dependent : std::exchange(unit.dependents, {}))
            enqueue(*dependent);
}

} // namespace specloom::openapi_diff
