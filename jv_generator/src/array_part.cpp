#include "jv_generator/composite_parts.h"

#include <algorithm> // std::max, std::min

namespace specloom::jv_generator {

namespace {

constexpr std::uint32_t mostSpread = 40;       ///< doublings of the ranges of numbers
constexpr int drawsBetweenSpreads = 8;         ///< equal items in a row
constexpr std::uint64_t drawsOfDistinct = 400; ///< for one item

[[nodiscard]] bool isNew(const jv::JV& item, std::uint64_t hash,
                         const std::unordered_multimap<std::uint64_t, const jv::JV*>& seen) {
    for (auto [at, end] = seen.equal_range(hash); at != end; ++at) {
        if (at->second->equals(item))
            return false;
    }
    return true;
}

} // namespace

ArrayPart::ArrayPart(GenFactory& factory, MergedSchema schema)
    : factory_(&factory), schema_(std::move(schema)), leastItems_(schema_.minItems) {
    for (const SchemaNode* node : schema_.nodes)
        prefix_ = std::max(prefix_, node->prefixItems.size());
    std::uint64_t contained = 0;
    for (const Containing& containing : schema_.containing) {
        contained = std::max(contained, containing.min);
        mostContained_ = std::min(mostContained_, containing.max);
    }
    leastItems_ = std::max(leastItems_, contained);
    addNeeds();
}

/// What an item has to fit, by its index. An item that fits the schema of a `contains` is evaluated by it.
std::vector<SchemaId> ArrayPart::schemasAt(std::size_t index, std::size_t containing) const {
    SchemaGraph& graph = factory_->graph();
    std::vector<SchemaId> schemas;
    for (const SchemaNode* node : schema_.nodes) {
        if (index < node->prefixItems.size())
            schemas.push_back(node->prefixItems[index]);
        else if (node->items != noSchema)
            schemas.push_back(node->items);
    }
    for (const Unevaluated& unevaluated : schema_.unevaluatedItems) {
        bool isEvaluated = false;
        std::vector<SchemaId> ways{unevaluated.schema};
        for (const SchemaId id : unevaluated.reach) {
            const SchemaNode& node = graph.node(id);
            isEvaluated |= index < node.prefixItems.size() || node.items != noSchema;
            if (node.contains != noSchema)
                ways.push_back(node.contains);
        }
        if (!isEvaluated)
            schemas.push_back(graph.anyOf(std::move(ways)));
    }
    for (std::size_t i = 0; i < schema_.containing.size(); ++i) {
        const Containing& counted = schema_.containing[i];
        if (i == containing)
            schemas.push_back(counted.schema);
        else if (counted.max == 0 || (containing == forNoMore && counted.max != UINT64_MAX))
            schemas.push_back(graph.opposite(counted.schema));
    }
    return schemas;
}

Demand& ArrayPart::itemAt(std::size_t index, std::size_t containing) {
    const std::size_t kept = std::min(index, prefix_);
    if (containing != forNone) {
        Demand*& demand = otherItems_[{kept, containing}];
        if (demand == nullptr)
            demand = &factory_->demand(schemasAt(kept, containing));
        return *demand;
    }
    while (items_.size() <= kept)
        items_.push_back(&factory_->demand(schemasAt(items_.size(), forNone)));
    return *items_[kept];
}

void ArrayPart::addNeeds() {
    for (std::uint64_t index = 0; index < std::min<std::uint64_t>(leastItems_, prefix_); ++index)
        needs_.push_back({&itemAt(index, forNone), 1});
    if (leastItems_ > prefix_)
        needs_.push_back({&itemAt(prefix_, forNone), leastItems_ - prefix_});
}

std::uint64_t ArrayPart::count(Context& context) {
    const GeneratorConfig& config = factory_->config();
    std::uint64_t min = std::max(leastItems_, std::min(config.minItems(), schema_.maxItems));
    std::uint64_t most = schema_.maxItems;
    if (most == UINT64_MAX || most > config.maxItems())
        most = min > config.maxItems() ? min : config.maxItems();
    const Fullness fullness = context.fullness();
    Demand& item = itemAt(prefix_, forNone);
    const bool isPossible = context.isPossible(item);
    if (fullness == Fullness::Scalars && isPossible && item.height == 0)
        most = std::min<std::uint64_t>(most, std::max<std::uint64_t>(min, 2));
    else if (fullness != Fullness::Full || (isPossible && item.size > modestOptional))
        most = min = leastItems_;
    // Fewer of them the deeper they are.
    most = std::max(min, std::min(most, std::max<std::uint64_t>(most >> std::min(context.depth(), 60U), 1)));
    if (most > 0 && min == 0)
        min = std::min<std::uint64_t>(most, 1);
    std::uint64_t count = context.random().between(min, most);
    // Items that there cannot be end the array.
    for (std::uint64_t index = leastItems_; index < count && index <= prefix_; ++index) {
        if (!context.isPossible(itemAt(index, forNone)))
            count = index;
    }
    return count;
}

/// Finds a place for the items that a `contains` asks for, behind one another.
std::vector<ArrayPart::Position> ArrayPart::placeContained(Context& context, std::uint64_t& count) {
    std::vector<Position> positions;
    std::size_t next = 0;
    for (std::size_t i = 0; i < schema_.containing.size(); ++i) {
        for (std::uint64_t placed = 0; placed < schema_.containing[i].min && next < schema_.maxItems;
             ++next) {
            if (next <= prefix_ && !context.isPossible(itemAt(next, i)))
                continue;
            positions.push_back({next, i});
            ++placed;
        }
    }
    count = std::max<std::uint64_t>(count, next);
    return positions;
}

bool ArrayPart::addDistinctItem(Context& context, Demand& demand, Seen& seen, jv::TreeBuilder& out) {
    const jv::TreeBuilder::Checkpoint before = out.checkpoint();
    for (std::uint64_t attempt = 0; attempt < drawsOfDistinct; ++attempt) {
        if (!context.generate(demand, out))
            return false;
        const jv::JV& item = *out.last();
        const std::uint64_t hash = item.hash();
        if (isNew(item, hash, seen)) {
            seen.emplace(hash, &item);
            return true;
        }
        out.rollBack(before);
        if (attempt % drawsBetweenSpreads == drawsBetweenSpreads - 1)
            context.setSpread(std::min(context.spread() + 1, mostSpread));
    }
    return false;
}

/// Returns how many were made.
std::uint64_t ArrayPart::addItems(Context& context, std::uint64_t count, std::span<const Position> positions,
                                  jv::TreeBuilder& out) {
    Seen seen;
    std::size_t nextPosition = 0;
    std::uint64_t contained = positions.size(); // or perhaps so
    for (std::uint64_t index = 0; index < count; ++index) {
        std::size_t containing = forNone;
        if (nextPosition < positions.size() && positions[nextPosition].index == index)
            containing = positions[nextPosition++].containing;
        else if (contained >= mostContained_)
            containing = forNoMore;
        else
            ++contained;
        Demand& demand = itemAt(index, containing);
        const bool isMade =
            schema_.uniqueItems ? addDistinctItem(context, demand, seen, out) : context.generate(demand, out);
        if (!isMade)
            return index;
    }
    return count;
}

bool ArrayPart::generate(Context& context, jv::TreeBuilder& out) {
    std::uint64_t items = count(context);
    const std::vector<Position> positions =
        schema_.containing.empty() ? std::vector<Position>() : placeContained(context, items);
    if (items > schema_.maxItems)
        return context.fail(schema_.place, "its 'contains' asks for more items than it may have");
    out.startArray({});
    const std::uint32_t outerSpread = context.spread();
    if (schema_.duplicateItems && items > 0)
        --items; // the last one is a copy
    const std::uint64_t made = addItems(context, items, positions, out);
    context.setSpread(outerSpread);
    // What is more than the least need not be.
    if (made < items &&
        made < std::max<std::uint64_t>(leastItems_, positions.empty() ? 0 : positions.back().index + 1))
        return context.fail(schema_.place, schema_.uniqueItems ? "no more different items were found"
                                                               : "no further item was found");
    if (schema_.duplicateItems && made == items && made > 0)
        out.addCopy(*out.last());
    out.end();
    return true;
}

} // namespace specloom::jv_generator
