#include "jv/jv_document.h"
#include "jv_generator/composite_parts.h"

#include <algorithm> // std::max, std::min
#include <memory>    // std::make_unique
#include <utility>   // std::as_const, std::move

namespace specloom::jv_generator {

namespace {

constexpr std::uint32_t mostSpread = 40;       ///< doublings of the ranges of numbers
constexpr int drawsBetweenSpreads = 8;         ///< equal items in a row
constexpr std::uint64_t drawsOfDistinct = 400; ///< for one item

} // namespace

ArrayPart::ArrayPart(GenFactory& factory, MergedSchema schema)
    : factory_(&factory), schema_(std::move(schema)), leastItems_(schema_.minItems) {
    for (const SchemaNode* node : schema_.nodes)
        prefix_ = std::max(prefix_, node->prefixItems.size());
    std::uint64_t contained = 0;
    for (const Containing& containing : schema_.containing)
        contained = std::max(contained, containing.min);
    leastItems_ = std::max(leastItems_, contained);
    addNeeds();
}

/// What an item has to fit, by its index.
std::vector<SchemaId> ArrayPart::schemasAt(std::size_t index) const {
    std::vector<SchemaId> schemas;
    for (const SchemaNode* node : schema_.nodes) {
        if (index < node->prefixItems.size())
            schemas.push_back(node->prefixItems[index]);
        else if (node->items != noSchema)
            schemas.push_back(node->items);
    }
    for (const Unevaluated& unevaluated : schema_.unevaluatedItems) {
        bool isEvaluated = false;
        for (const SchemaId id : unevaluated.reach) {
            const SchemaNode& node = factory_->graph().node(id);
            isEvaluated |= index < node.prefixItems.size() || node.items != noSchema;
        }
        if (!isEvaluated)
            schemas.push_back(unevaluated.schema);
    }
    for (const Containing& containing : schema_.containing) {
        if (containing.max == 0)
            schemas.push_back(factory_->graph().opposite(containing.schema));
    }
    return schemas;
}

Demand& ArrayPart::makeItem(std::size_t index) {
    return factory_->demand(schemasAt(index));
}

Demand& ArrayPart::itemAt(std::size_t index) {
    const std::size_t kept = std::min(index, prefix_);
    while (items_.size() <= kept)
        items_.push_back(&makeItem(items_.size()));
    return *items_[kept];
}

void ArrayPart::addNeeds() {
    for (std::uint64_t index = 0; index < std::min<std::uint64_t>(leastItems_, prefix_); ++index)
        needs_.push_back({&itemAt(index), 1});
    if (leastItems_ > prefix_)
        needs_.push_back({&itemAt(prefix_), leastItems_ - prefix_});
}

std::uint64_t ArrayPart::count(Context& context) {
    const GeneratorConfig& config = factory_->config();
    std::uint64_t min = std::max(leastItems_, std::min(config.minItems(), schema_.maxItems));
    std::uint64_t most = schema_.maxItems;
    if (most == UINT64_MAX || most > config.maxItems())
        most = min > config.maxItems() ? min : config.maxItems();
    if (context.fullness() != Fullness::Full) {
        const bool isScalar = context.fullness() == Fullness::Scalars &&
                              context.isPossible(itemAt(prefix_)) && itemAt(prefix_).height == 0;
        most = isScalar ? std::min<std::uint64_t>(most, std::max<std::uint64_t>(min, 2)) : leastItems_;
        min = isScalar ? min : leastItems_;
    }
    // Fewer of them the deeper they are.
    most = std::max(min, std::min(most, std::max<std::uint64_t>(most >> std::min(context.depth(), 60U), 1)));
    if (most > 0 && min == 0)
        min = std::min<std::uint64_t>(most, 1);
    std::uint64_t count = context.random().between(min, most);
    // Items that there cannot be end the array.
    for (std::uint64_t index = leastItems_; index < count && index <= prefix_; ++index) {
        if (!context.isPossible(itemAt(index)))
            count = index;
    }
    return count;
}

/// Finds a place for the items that a `contains` asks for, behind one another.
std::vector<ArrayPart::Position> ArrayPart::placeContained(Context& context, std::uint64_t& count) {
    std::vector<Position> positions;
    std::size_t next = 0;
    for (const Containing& containing : schema_.containing) {
        for (std::uint64_t placed = 0; placed < containing.min && next < schema_.maxItems; ++next) {
            std::vector<SchemaId> schemas = schemasAt(next);
            schemas.push_back(containing.schema);
            Demand& demand = factory_->demand(std::move(schemas));
            if (!context.isPossible(demand))
                if (next <= prefix_)
                    continue;
            positions.push_back({next, &demand});
            ++placed;
        }
    }
    count = std::max<std::uint64_t>(count, next);
    return positions;
}

bool ArrayPart::isNew(const jv::JV& item) {
    const std::uint64_t hash = item.hash();
    for (auto [at, end] = seen_.equal_range(hash); at != end; ++at) {
        if (at->second->equals(item))
            return false;
    }
    return true;
}

bool ArrayPart::addItem(Context& context, Demand& demand, jv::JV& out) {
    auto item = std::make_unique<jv::JV>();
    if (!context.generate(demand, *item))
        return false;
    out.append(std::move(item));
    return true;
}

bool ArrayPart::addDistinctItem(Context& context, Demand& demand, jv::JV& out) {
    for (std::uint64_t attempt = 0; attempt < drawsOfDistinct; ++attempt) {
        auto item = std::make_unique<jv::JV>();
        if (!context.generate(demand, *item))
            return false;
        if (isNew(*item)) {
            seen_.emplace(item->hash(), item.get());
            out.append(std::move(item));
            return true;
        }
        if (attempt % drawsBetweenSpreads == drawsBetweenSpreads - 1)
            context.setSpread(std::min(context.spread() + 1, mostSpread));
    }
    return false;
}

bool ArrayPart::generate(Context& context, jv::JV& out) {
    out.setNull();
    out.makeArray();
    std::uint64_t items = count(context);
    const std::vector<Position> positions =
        schema_.containing.empty() ? std::vector<Position>() : placeContained(context, items);
    if (items > schema_.maxItems)
        return context.fail(schema_.place, "its 'contains' asks for more items than it may have");
    std::vector<SchemaId> others; // of what is more than a `contains` allows
    for (const Containing& containing : schema_.containing) {
        if (containing.max != UINT64_MAX)
            others.push_back(factory_->graph().opposite(containing.schema));
    }
    auto outerSeen = std::move(seen_); // a value of this part may hold another one
    seen_.clear();
    const std::uint32_t outerSpread = context.spread();
    std::size_t nextPosition = 0;
    if (schema_.duplicateItems && items > 0)
        --items; // the last one is a copy
    bool isDone = true;
    for (std::uint64_t index = 0; index < items && isDone; ++index) {
        Demand* demand = nullptr;
        if (nextPosition < positions.size() && positions[nextPosition].index == index) {
            demand = positions[nextPosition++].demand;
        } else if (others.empty()) {
            demand = &itemAt(index);
        } else {
            std::vector<SchemaId> schemas = schemasAt(index);
            schemas.insert(schemas.end(), others.begin(), others.end());
            demand = &factory_->demand(std::move(schemas));
        }
        if (schema_.uniqueItems)
            isDone = addDistinctItem(context, *demand, out);
        else
            isDone = addItem(context, *demand, out);
    }
    if (schema_.duplicateItems && isDone && out.size() > 0)
        out.append(jv::JVDocument::clone(*std::as_const(out).elements().back()));
    context.setSpread(outerSpread);
    seen_ = std::move(outerSeen);
    // What is more than the least need not be.
    if (!isDone &&
        out.size() < std::max<std::uint64_t>(leastItems_, positions.empty() ? 0 : positions.back().index + 1))
        return context.fail(schema_.place, schema_.uniqueItems ? "no more different items were found"
                                                               : "no further item was found");
    return true;
}

} // namespace specloom::jv_generator
