#include "jv_generator/gen_factory.h"

#include "jv_generator/composite_parts.h"
#include "jv_generator/parts.h"

#include <algorithm> // std::ranges::any_of, std::ranges::count_if, std::ranges::sort, std::unique
#include <array>     // std::to_array
#include <optional>  // std::optional
#include <span>      // std::span
#include <utility>   // std::move

namespace specloom::jv_generator {

namespace {

/// The kinds of value that are alternatives, in their order.
constexpr auto kindsInOrder = std::to_array<ValueKinds>({
    value_kind::null,
    value_kind::boolean,
    value_kind::integer,
    value_kind::fraction,
    value_kind::string,
    value_kind::object,
    value_kind::array,
});

/// Those of a set. Numbers that may be integers or not are one kind.
[[nodiscard]] std::vector<ValueKinds> alternativesOf(ValueKinds kinds) {
    std::vector<ValueKinds> result;
    for (const ValueKinds kind : kindsInOrder) {
        const bool isBoth =
            (kind & value_kind::number) != 0 && (kinds & value_kind::number) == value_kind::number;
        if (isBoth && kind == value_kind::fraction)
            continue;
        if ((kinds & kind) != 0)
            result.push_back(isBoth ? value_kind::number : kind);
    }
    return result;
}

constexpr std::size_t mostKindsOfTypes = 4;  ///< a schema that allows more kinds is taken to be about none
constexpr std::size_t mostDemands = 100'000; ///< after which all are taken for easy ones
constexpr std::size_t mostExplored = 2000;   ///< demands in one measure

} // namespace

void refuse(Demand& demand, const jv::JV* schema, std::string_view reason) {
    demand.state = Demand::State::Impossible;
    demand.alternatives.clear();
    demand.part.reset();
    demand.place = schema;
    demand.reason = reason;
}

Demand& GenFactory::demand(std::vector<SchemaId> schemas) {
    std::ranges::sort(schemas);
    schemas.erase(std::unique(schemas.begin(), schemas.end()), schemas.end());
    const auto [known, isNew] = demands_.try_emplace(std::move(schemas));
    if (isNew) {
        known->second = std::make_unique<Demand>();
        known->second->schemas = known->first;
    }
    return *known->second;
}

void GenFactory::build(Demand& demand) {
    if (demand.state != Demand::State::New)
        return;
    demand.state = Demand::State::Impossible; // until it is known
    Closure closure;
    try {
        if (close(demand, closure))
            makePart(demand, closure);
        demand.isContainer = demand.part != nullptr && demand.part->isContainer();
    } catch (const regex::SyntaxError& error) {
        refuse(demand, closure.schemas.empty() ? nullptr : graph_->node(closure.schemas.front()).source,
               std::string("its pattern cannot be read: ") + error.what());
    }
}

/// Adds what the schemas from an index on refer to and require. Returns the first that is false, if any.
const SchemaNode* GenFactory::extend(Closure& closure, std::size_t from) {
    for (std::size_t next = from; next < closure.schemas.size(); ++next) {
        const SchemaNode& node = graph_->node(closure.schemas[next]);
        if (node.isFalse)
            return &node;
        if (node.reference != noSchema)
            closure.add(node.reference);
        for (const SchemaId part : node.allOf)
            closure.add(part);
    }
    return nullptr;
}

/// Adds all that holds with the schemas of a demand. False when that made it a choice or impossible.
bool GenFactory::close(Demand& demand, Closure& closure) {
    for (const SchemaId id : demand.schemas)
        closure.add(id);
    std::size_t extended = 0;
    for (bool hasGrown = true; hasGrown;) {
        if (const SchemaNode* never = extend(closure, extended)) {
            refuse(demand, never->source, "Cannot generate a JV object for a falsy schema");
            return false;
        }
        extended = closure.schemas.size();
        hasGrown = false;
        if (!settleChoices(demand, closure, hasGrown))
            return false;
    }
    return true;
}

Admission GenFactory::admission(const Demand& demand) {
    Closure closure;
    for (const SchemaId id : demand.schemas)
        closure.add(id);
    const bool isNever = extend(closure, 0) != nullptr;
    return {*graph_, closure, isNever};
}

/// Makes the demand a choice where one is open: the one with the fewest alternatives, since that tells most
/// of the others. An alternative that holds already is the chosen one.
bool GenFactory::settleChoices(Demand& demand, Closure& closure, bool& hasGrown) {
    std::optional<OpenChoice> open;
    Held held;
    for (const SchemaId id : closure.schemas) {
        const SchemaNode& node = graph_->node(id);
        held.kinds &= node.kinds;
        held.required.insert(node.required.begin(), node.required.end());
    }
    const auto consider = [&](const std::vector<SchemaId>& alternatives, bool prefersFirst) {
        std::vector<SchemaId> left = viable(alternatives, closure, held);
        if (left.size() == 1) // no choice at all
            hasGrown |= closure.add(left.front());
        else if (!open || left.size() < open->alternatives.size())
            open = OpenChoice{std::move(left), prefersFirst};
    };
    for (std::size_t i = 0; i < closure.schemas.size(); ++i) {
        const SchemaId id = closure.schemas[i];
        const SchemaNode& node = graph_->node(id);
        const auto holds = [&](SchemaId alternative) { return closure.has(alternative); };
        for (const std::vector<SchemaId>& alternatives : node.anyOf) {
            if (std::ranges::none_of(alternatives, holds))
                consider(alternatives, node.prefersFirst);
        }
        if (node.oneOf.empty())
            continue;
        const auto chosen = std::ranges::count_if(node.oneOf, holds);
        if (chosen == 0)
            consider(node.oneOf, false);
        if (chosen > 1) {
            refuse(demand, node.source, "two alternatives of its 'oneOf' are asked for at once");
            return false;
        }
        if (chosen == 1)
            hasGrown |= tellApart(id, node, closure);
    }
    if (hasGrown || !open)
        return true;
    demand.place = graph_->node(closure.schemas.front()).source;
    choose(demand, *open);
    return false;
}

/// Adds the opposites of the alternatives that are told apart from the chosen one.
bool GenFactory::tellApart(SchemaId id, const SchemaNode& node, Closure& closure) {
    std::size_t chosen = 0;
    while (!closure.has(node.oneOf[chosen]))
        ++chosen;
    bool hasGrown = false;
    for (std::size_t i = 0; i < node.oneOf.size(); ++i) {
        if (i != chosen && graph_->areToldApart(id, chosen, i))
            hasGrown |= closure.add(graph_->opposite(node.oneOf[i]));
    }
    return hasGrown;
}

/// Those that do not contradict what holds already, at first sight.
std::vector<SchemaId> GenFactory::viable(const std::vector<SchemaId>& alternatives, const Closure& closure,
                                         const Held& held) {
    const auto leavesOut = [&](const SchemaNode& node) {
        return std::ranges::any_of(node.properties, [&](const NamedSchema& property) {
            return held.required.contains(property.name) && graph_->node(property.schema).isFalse;
        });
    };
    std::vector<SchemaId> result;
    for (const SchemaId alternative : alternatives) {
        const SchemaNode& node = graph_->node(alternative);
        const SchemaId opposed = graph_->opposed(alternative);
        const bool isRefuted = opposed != noSchema && closure.has(opposed);
        if ((node.kinds & held.kinds) != 0 && !isRefuted && !leavesOut(node) && !graph_->isNever(alternative))
            result.push_back(alternative);
    }
    return result;
}

void GenFactory::choose(Demand& demand, const OpenChoice& choice) {
    if (choice.alternatives.empty())
        return refuse(demand, demand.place, "none of its alternatives can hold beside the rest of it");
    demand.state = Demand::State::Choice;
    demand.choosing = choice.prefersFirst ? Demand::Choosing::First : Demand::Choosing::Any;
    for (const SchemaId alternative : choice.alternatives) {
        std::vector<SchemaId> schemas = demand.schemas;
        schemas.push_back(alternative);
        demand.alternatives.push_back(&this->demand(std::move(schemas)));
    }
}

void GenFactory::makePart(Demand& demand, const Closure& closure) {
    MergedSchema schema(*graph_, closure);
    demand.place = schema.place;
    if (schema.kinds == 0)
        return refuse(demand, schema.place, "its types exclude each other");
    if (splitKinds(demand, schema))
        return;
    demand.state = Demand::State::Part;
    if (schema.hasEnumeration && schema.kinds != value_kind::boolean) {
        if (schema.candidates.empty())
            return refuse(demand, schema.place, "none of the values of its 'enum' fits the rest of it");
        demand.part = std::make_unique<EnumPart>(schema.candidates);
        return;
    }
    makeKind(demand, closure, std::move(schema));
}

/// A choice for a schema that allows several kinds of value.
bool GenFactory::splitKinds(Demand& demand, const MergedSchema& schema) {
    const std::vector<ValueKinds> kinds = alternativesOf(schema.kinds);
    if (schema.hasEnumeration || kinds.size() == 1)
        return false;
    const auto add = [&](ValueKinds alternative) {
        std::vector<SchemaId> schemas = demand.schemas;
        schemas.push_back(graph_->ofKinds(alternative));
        demand.alternatives.push_back(&this->demand(std::move(schemas)));
    };
    demand.state = Demand::State::Choice;
    demand.choosing = Demand::Choosing::Kinds;
    demand.mayBeNull = kinds.front() == value_kind::null;
    if (kinds.size() <= mostKindsOfTypes) {
        std::ranges::for_each(kinds, add);
        return true;
    }
    demand.choosing = Demand::Choosing::First;
    const auto hinted = static_cast<ValueKinds>(schema.hints & schema.kinds);
    if (hinted != 0 && hinted != schema.kinds) {
        add(hinted);
        add(static_cast<ValueKinds>(schema.kinds & ~hinted));
        return true;
    }
    if ((schema.kinds & value_kind::integer) != 0 && schema.admits(*graph_, jv::JV(42))) {
        demand.state = Demand::State::Part;
        demand.part = std::make_unique<TruthyPart>();
        return true;
    }
    for (auto kind = kinds.rbegin(); kind != kinds.rend(); ++kind)
        add(*kind);
    return true;
}

void GenFactory::makeKind(Demand& demand, const Closure& closure, MergedSchema schema) {
    switch (schema.kinds) {
    case value_kind::null:
        demand.part = std::make_unique<NullPart>();
        return;
    case value_kind::boolean:
        return makeBoolean(demand, schema);
    case value_kind::string:
        return makeString(demand, std::move(schema));
    case value_kind::object:
        return makeObject(demand, closure, std::move(schema));
    case value_kind::array:
        return makeArray(demand, std::move(schema));
    default:
        return makeNumber(demand, std::move(schema));
    }
}

void GenFactory::makeBoolean(Demand& demand, const MergedSchema& schema) {
    const auto isOffered = [&](bool value) {
        const jv::JV candidate(value);
        return schema.admits(*graph_, candidate) &&
               (!schema.hasEnumeration || std::ranges::any_of(schema.candidates, [&](const jv::JV* other) {
                   return other->equals(candidate);
               }));
    };
    if (isOffered(true) && isOffered(false))
        demand.part = std::make_unique<BooleanPart>();
    else if (isOffered(true))
        demand.part = std::make_unique<TruePart>();
    else if (isOffered(false))
        demand.part = std::make_unique<FalsePart>();
    else
        refuse(demand, schema.place, "Boolean schema with no true or false value");
}

void GenFactory::makeNumber(Demand& demand, MergedSchema schema) {
    const jv::JV* place = schema.place;
    std::unique_ptr<NumberPart> part;
    if (schema.kinds == value_kind::integer)
        part = std::make_unique<IntegerPart>(*graph_, std::move(schema), *config_);
    else
        part = std::make_unique<NumberPart>(*graph_, std::move(schema), *config_);
    if (part->isEmpty())
        return refuse(demand, place, "there is no number in its range");
    demand.part = std::move(part);
}

void GenFactory::makeString(Demand& demand, MergedSchema schema) {
    if (schema.minLength > schema.maxLength)
        return refuse(demand, schema.place, "its 'minLength' is above its 'maxLength'");
    for (const SchemaNode* node : schema.nodes) {
        if (node->hasPattern && node->source != nullptr)
            patterns_.push_back({node->pattern, node->source});
    }
    TextMaker maker = nullptr;
    std::string_view form;
    for (auto format = schema.formats.begin(); maker == nullptr && format != schema.formats.end(); ++format)
        maker = textMakerOf(form = *format);
    if (maker == nullptr && !schema.encoding.empty())
        maker = textMakerOf(form = schema.encoding);
    if (!schema.patterns.empty())
        demand.part = std::make_unique<RegexPart>(*graph_, std::move(schema), *config_, maker);
    else if (maker != nullptr)
        demand.part = std::make_unique<FormatPart>(*graph_, std::move(schema), *config_, maker, form);
    else
        demand.part = std::make_unique<StringPart>(*graph_, std::move(schema), *config_);
}

void GenFactory::makeArray(Demand& demand, MergedSchema schema) {
    if (schema.minItems > schema.maxItems)
        return refuse(demand, schema.place, "its 'minItems' is above its 'maxItems'");
    demand.part = std::make_unique<ArrayPart>(*this, std::move(schema));
}

void GenFactory::makeObject(Demand& demand, const Closure& closure, MergedSchema schema) {
    if (schema.minProperties > schema.maxProperties)
        return refuse(demand, schema.place, "its 'minProperties' is above its 'maxProperties'");
    if (schema.required.size() > schema.maxProperties)
        return refuse(demand, schema.place, "it requires more properties than its 'maxProperties' allows");
    for (const SchemaNode* node : schema.nodes) {
        for (const NamedSchema& property : node->patternProperties)
            patterns_.push_back({property.name, node->source});
    }
    demand.part = std::make_unique<ObjectPart>(*this, std::move(schema), discriminating(demand, closure));
}

// ---- discriminators

std::vector<GenFactory::Discriminating> GenFactory::discriminating(const Demand& demand,
                                                                   const Closure& closure) {
    std::vector<Discriminating> result;
    const JSONSchema& bundle = graph_->schema();
    const auto originOf = [&](SchemaId id) { // the schema of the document behind references
        for (std::size_t steps = 0; steps < closure.schemas.size(); ++steps) {
            const SchemaNode& node = graph_->node(id);
            if (node.reference == noSchema)
                break;
            id = node.reference;
        }
        const jv::JV* source = graph_->node(id).source;
        return source == nullptr ? nullptr : bundle.origin(*source);
    };
    const auto nameOf = [](const jv::JV& discriminator, const jv::JV& schema) {
        const std::string pointer = schema.pointer();
        std::string name = pointer.substr(pointer.rfind('/') + 1);
        if (const jv::JV* mapping = discriminator.get("mapping"); mapping != nullptr && mapping->isObject()) {
            for (const jv::Member member : mapping->members()) {
                if (!member.value->isString())
                    continue;
                const std::string_view target = member.value->text();
                if (target == name || target == "#" + pointer)
                    return std::string(member.key);
            }
        }
        return name;
    };
    const auto add = [&](const jv::JV& discriminator, const jv::JV* schema) {
        const jv::JV* property = discriminator.get("propertyName");
        if (schema != nullptr && property != nullptr && property->isString() &&
            schema->pointer().starts_with("/components/schemas/"))
            result.push_back({property->text(), nameOf(discriminator, *schema)});
    };
    for (const SchemaId id : closure.schemas) {
        const SchemaNode& node = graph_->node(id);
        if (node.discriminator == nullptr)
            continue;
        bool isChosen = false;
        const auto consider = [&](SchemaId alternative) {
            if (closure.has(alternative) && !isChosen) {
                isChosen = true;
                add(*node.discriminator, originOf(alternative));
            }
        };
        std::ranges::for_each(node.oneOf, consider);
        for (const std::vector<SchemaId>& alternatives : node.anyOf)
            std::ranges::for_each(alternatives, consider);
        // A schema that others build on by `allOf` is told by the outermost of them.
        if (!node.oneOf.empty() || !node.anyOf.empty())
            continue;
        const std::size_t before = result.size();
        for (auto outermost = demand.schemas.rbegin(); outermost != demand.schemas.rend(); ++outermost) {
            if (result.size() == before)
                add(*node.discriminator, originOf(*outermost));
        }
    }
    return result;
}

// ---- measuring

/// What was met on the way through needs and alternatives.
struct GenFactory::Exploration {
    explicit Exploration(Demand& root) : found{&root}, seen{&root} {}

    std::vector<Demand*> found;
    std::unordered_set<Demand*> seen;
};

namespace {

[[nodiscard]] std::uint64_t sumOf(std::uint64_t a, std::uint64_t b) {
    return a > UINT64_MAX - b ? UINT64_MAX : a + b;
}

[[nodiscard]] std::uint64_t productOf(std::uint64_t a, std::uint64_t b) {
    return a != 0 && b > UINT64_MAX / a ? UINT64_MAX : a * b;
}

/// The alternatives that count so far.
[[nodiscard]] std::span<Demand* const> countingOf(const Demand& demand) {
    const std::span<Demand* const> all = demand.alternatives;
    const bool isLazy = demand.choosing == Demand::Choosing::First;
    return isLazy ? all.first(std::min(demand.measured, all.size())) : all;
}

/// Returns whether that changed it.
bool takeForEasy(Demand& demand) {
    const bool hasChanged = demand.height != 0;
    demand.height = 0;
    demand.size = 1;
    return hasChanged;
}

/// Measures a demand by what it leads to. Returns whether that changed it.
[[nodiscard]] bool update(Demand& demand) {
    if (demand.isUnknown)
        return takeForEasy(demand);
    std::uint32_t height = Demand::endless;
    std::uint64_t size = UINT64_MAX;
    for (const Demand* alternative : countingOf(demand)) {
        height = std::min(height, alternative->height);
        size = std::min(size, alternative->size);
    }
    if (demand.part != nullptr) {
        height = 0;
        size = 1 + demand.part->leastBytes();
        for (const Need& need : demand.part->needs()) {
            height = std::max(height, need.demand->height);
            size = sumOf(size, productOf(need.count, need.demand->size));
        }
        height += demand.isContainer && height != Demand::endless ? 1 : 0;
    }
    const bool hasChanged = height != demand.height || size != demand.size;
    demand.height = height;
    demand.size = size;
    return hasChanged;
}

} // namespace

void GenFactory::measure(Demand& root) {
    if (root.isMeasured)
        return;
    if (demands_.size() > mostDemands) {
        build(root);
        root.isMeasured = true;
        root.height = root.state == Demand::State::Impossible ? Demand::endless : 0;
        root.size = 1;
        return;
    }
    Exploration exploration(root);
    do {
        explore(exploration);
        for (Demand* demand : exploration.found) {
            demand->height = Demand::endless;
            demand->size = UINT64_MAX;
        }
        for (bool hasChanged = true; hasChanged;) {
            hasChanged = false;
            for (auto at = exploration.found.rbegin(); at != exploration.found.rend(); ++at)
                hasChanged |= update(**at);
        }
    } while (widen(exploration));
    for (Demand* demand : exploration.found)
        demand->isMeasured = true;
}

/// Builds what was found, and finds what that needs. Demands beyond a limit are taken for easy ones.
void GenFactory::explore(Exploration& exploration) {
    std::vector<Demand*>& found = exploration.found;
    const auto visit = [&](Demand* further) {
        if (further->isMeasured || exploration.seen.contains(further))
            return;
        if (found.size() >= mostExplored) {
            takeForEasy(*further);
            return;
        }
        exploration.seen.insert(further);
        found.push_back(further);
    };
    for (std::size_t next = 0; next < found.size(); ++next) {
        Demand& demand = *found[next];
        build(demand);
        std::ranges::for_each(countingOf(demand), visit);
        if (demand.part != nullptr) {
            for (const Need& need : demand.part->needs())
                visit(need.demand);
        }
    }
}

/// Lets one more alternative count where none could be so far. A choice of the first has one for each thing
/// that can be broken, and so has each choice behind them: not all of these can be looked at.
bool GenFactory::widen(const Exploration& exploration) {
    const bool isTooMuch = exploration.found.size() >= mostExplored;
    bool isWider = false;
    for (Demand* demand : exploration.found) {
        const bool isLazy = demand->choosing == Demand::Choosing::First;
        if (!isLazy || demand->isUnknown || demand->height != Demand::endless ||
            demand->measured >= demand->alternatives.size())
            continue;
        if (isTooMuch)
            demand->isUnknown = true;
        else
            ++demand->measured;
        isWider = true;
    }
    return isWider;
}

} // namespace specloom::jv_generator
