#include "jv_generator/composite_parts.h"
#include "jv_generator/texts.h"

#include <algorithm> // std::max, std::min, std::ranges::any_of, std::ranges::binary_search, std::ranges::sort
#include <iterator>  // std::back_inserter

namespace specloom::jv_generator {

namespace {

constexpr std::uint64_t usualFurther = 3;       ///< members of an object that knows no names
constexpr std::uint64_t attemptsOfFurther = 50; ///< for one member
constexpr std::uint64_t lengthOfName = 8;
constexpr egret::Lengths lengthsOfPatternName{1, 32};

} // namespace

ObjectPart::ObjectPart(GenFactory& factory, MergedSchema schema,
                       std::vector<GenFactory::Discriminating> discriminating)
    : factory_(&factory), schema_(std::move(schema)), discriminating_(std::move(discriminating)) {
    for (const SchemaNode* node : schema_.nodes) {
        for (const NamedSchema& property : node->patternProperties)
            namePatterns_.push_back(property.name);
        if (node->additionalProperties != noSchema) {
            const SchemaNode& additional = factory.graph().node(node->additionalProperties);
            isMap_ |= !additional.isFalse && additional.source != nullptr && additional.source->isObject();
        }
    }
    addNames();
    addProperties();
    isMap_ = (isMap_ || !namePatterns_.empty()) && properties_.empty();
    addNeeds();
}

void ObjectPart::addNames() {
    std::vector<SchemaId> schemas;
    for (const SchemaNode* node : schema_.nodes) {
        if (node->propertyNames != noSchema)
            schemas.push_back(node->propertyNames);
    }
    const auto demandOf = [&](std::vector<SchemaId> all) -> Demand& {
        all.push_back(factory_->graph().ofKinds(value_kind::string));
        return factory_->demand(std::move(all));
    };
    if (!schemas.empty()) {
        names_ = &demandOf(schemas);
        admittedNames_.emplace(factory_->admission(*names_));
    }
    for (const SchemaNode* node : schema_.nodes) {
        if (node->foreignName == noSchema)
            continue;
        std::vector<SchemaId> foreign = schemas;
        foreign.push_back(node->foreignName);
        foreignNames_.push_back(&demandOf(std::move(foreign)));
    }
}

void ObjectPart::addProperties() {
    std::vector<std::string_view> names = schema_.required;
    for (const SchemaNode* node : schema_.nodes) {
        for (const NamedSchema& property : node->properties)
            names.push_back(property.name);
    }
    for (const GenFactory::Discriminating& right : discriminating_)
        names.push_back(right.property);
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    for (const std::string_view name : names) {
        const bool isRequired = std::ranges::binary_search(schema_.required, name);
        Property& property = properties_.emplace_back(
            Property{jv::KeyPool::instance().intern(name), &propertyDemand(name), nullptr, isRequired});
        required_ += isRequired ? 1 : 0;
        for (const GenFactory::Discriminating& right : discriminating_) {
            if (right.property == name && property.text == nullptr)
                property.text = &right.value;
        }
    }
}

void ObjectPart::addNeeds() {
    for (const Property& property : properties_) {
        if (property.isRequired)
            needs_.push_back({property.demand, 1});
    }
    for (Demand* names : foreignNames_)
        needs_.push_back({names, 1});
}

/// What a member has to fit, by its name.
Demand& ObjectPart::propertyDemand(std::string_view name) const {
    SchemaGraph& graph = factory_->graph();
    std::vector<SchemaId> schemas;
    const auto collect = [&](const SchemaNode& node) {
        bool isKnown = false;
        const auto named = std::ranges::lower_bound(node.properties, name, {}, &NamedSchema::name);
        if (named != node.properties.end() && named->name == name) {
            schemas.push_back(named->schema);
            isKnown = true;
        }
        for (const NamedSchema& property : node.patternProperties) {
            if (!graph.matches(property.name, name))
                continue;
            schemas.push_back(property.schema);
            isKnown = true;
        }
        if (isKnown || node.additionalProperties == noSchema)
            return isKnown;
        schemas.push_back(node.additionalProperties);
        return true;
    };
    for (const SchemaNode* node : schema_.nodes)
        collect(*node);
    for (const Unevaluated& unevaluated : schema_.unevaluatedProperties) {
        const std::vector<SchemaId> before = schemas;
        const bool isEvaluated =
            std::ranges::any_of(unevaluated.reach, [&](SchemaId id) { return collect(graph.node(id)); });
        schemas = before;
        if (!isEvaluated)
            schemas.push_back(unevaluated.schema);
    }
    return factory_->demand(std::move(schemas));
}

bool ObjectPart::mayBeNamed(std::string_view name) {
    return !admittedNames_ || admittedNames_->admits(jv::JV(name));
}

// ---- what can be

/// Finds out which properties can be, and whether they may have the text that a discriminator expects. Not
/// when the part is made: schemas refer to themselves.
void ObjectPart::settleProperties() {
    isSettled_ = true;
    for (Property& property : properties_) {
        factory_->measure(*property.demand);
        if (property.text != nullptr && !factory_->admission(*property.demand).admits(jv::JV(*property.text)))
            property.text = nullptr;
    }
    for (const Fullness fullness : {Fullness::Required, Fullness::Scalars, Fullness::Full})
        settleOffer(offers_[static_cast<std::size_t>(fullness)], fullness);
}

/// Whether a property that is not required may be taken.
bool ObjectPart::isOpen(const Property& property, Fullness fullness) {
    const Demand& demand = *property.demand;
    if (property.isRequired || demand.height == Demand::endless || !mayBeNamed(property.name()))
        return false;
    if (schema_.minProperties > required_)
        return true;
    if (fullness == Fullness::Full)
        return demand.size <= modestOptional;
    return demand.height == 0 && (fullness == Fullness::Scalars || property.text != nullptr);
}

void ObjectPart::settleOffer(Offer& offer, Fullness fullness) {
    const std::uint64_t room = schema_.maxProperties - required_;
    std::uint64_t certain = 0; // though not required
    for (std::uint32_t index = 0; index < properties_.size(); ++index) {
        const Property& property = properties_[index];
        const bool mayBe = isOpen(property, fullness);
        const bool isCertain = mayBe && property.text != nullptr && certain < room;
        certain += isCertain ? 1 : 0;
        if (property.isRequired || isCertain)
            offer.always.push_back(index);
        else if (mayBe)
            offer.open.push_back(index);
    }
    const GeneratorConfig& config = factory_->config();
    const std::uint64_t missing = schema_.minProperties > required_ ? schema_.minProperties - required_ : 0;
    const std::uint64_t wanted = fullness == Fullness::Required ? 0 : config.maxProperties();
    offer.wanted = std::min(std::max(wanted, missing), room);
    offer.wanted -= std::min(offer.wanted, certain);
    std::ranges::merge(offer.always, offer.open, std::back_inserter(offer.all));
}

// ---- values

bool ObjectPart::generate(Context& context, jv::TreeBuilder& out) {
    if (!isSettled_)
        settleProperties();
    Making making{context, out};
    out.startObject({});
    if (!addKnown(making))
        return context.fail(schema_.place, "a property that it requires was not found");
    if (!addForeign(making))
        return context.fail(schema_.place, "no property of a name that it needs was found");
    const std::uint64_t further = furtherCount(making);
    if (further > 0 && !addFurther(making, further) && making.present < schema_.minProperties)
        return context.fail(schema_.place, "it requires more properties than were found");
    out.end();
    return true;
}

bool ObjectPart::addKnown(Making& making) {
    const Offer& offer = offers_[static_cast<std::size_t>(making.context.fullness())];
    if (offer.wanted >= offer.open.size())
        return addEach(making, offer.all);
    if (offer.wanted == 0)
        return addEach(making, offer.always);
    return addEach(making, chosen(offer, making.context.random()));
}

/// Each choice of so many is as likely as the others. Few are drawn one by one (Floyd's algorithm), of many
/// it is asked of each whether it is one of them.
ObjectPart::Indices ObjectPart::chosen(const Offer& offer, RandomEngine& random) {
    constexpr std::uint64_t few = 32;
    const std::size_t count = offer.open.size();
    Indices places;
    if (offer.wanted <= few) {
        for (std::size_t last = count - offer.wanted; last < count; ++last) {
            const auto place = static_cast<std::uint32_t>(random.below(last + 1));
            const bool isNew = std::ranges::find(places, place) == places.end();
            places.push_back(isNew ? place : static_cast<std::uint32_t>(last));
        }
        std::ranges::sort(places);
    } else {
        for (std::uint32_t place = 0; place < count; ++place) {
            if (random.below(count - place) < offer.wanted - places.size())
                places.push_back(place);
        }
    }
    Indices taken;
    taken.reserve(offer.always.size() + places.size());
    auto next = offer.always.begin();
    for (const std::uint32_t place : places) {
        for (; next != offer.always.end() && *next < offer.open[place]; ++next)
            taken.push_back(*next);
        taken.push_back(offer.open[place]);
    }
    taken.insert(taken.end(), next, offer.always.end());
    return taken;
}

bool ObjectPart::addEach(Making& making, const Indices& indices) {
    for (const std::uint32_t index : indices) {
        const Property& property = properties_[index];
        if (!add(making, property) && property.isRequired)
            return false;
    }
    return true;
}

bool ObjectPart::add(Making& making, const Property& property) {
    const jv::TreeBuilder::Checkpoint before = making.out.checkpoint();
    making.out.addKey(property.key);
    if (property.text != nullptr) {
        making.out.addString(*property.text, {});
    } else if (!making.context.generate(*property.demand, making.out)) {
        making.out.rollBack(before);
        return false;
    }
    ++making.present;
    return true;
}

/// Members whose names the opposite of a `propertyNames` asks for.
bool ObjectPart::addForeign(Making& making) {
    for (Demand* names : foreignNames_) {
        bool isAdded = false;
        for (std::uint64_t attempt = 0; attempt < attemptsOfFurther && !isAdded; ++attempt) {
            const std::optional<std::string> name = nameFor(making.context, *names);
            if (!name)
                return false;
            isAdded = making.further.contains(*name) || addMember(making, *name, propertyDemand(*name));
        }
        if (!isAdded)
            return false;
    }
    return true;
}

/// Members of names that the schema does not know: as many as are missing, or some where it is all about
/// them.
std::uint64_t ObjectPart::furtherCount(const Making& making) const {
    const GeneratorConfig& config = factory_->config();
    const std::uint64_t missing =
        schema_.minProperties > making.present ? schema_.minProperties - making.present : 0;
    std::uint64_t wanted = 0;
    if (isMap_ && making.context.fullness() != Fullness::Required)
        wanted = making.context.random().between(std::max<std::uint64_t>(config.minProperties(), 1),
                                                 std::max(config.minProperties(), usualFurther));
    const std::uint64_t room = schema_.maxProperties - std::min(schema_.maxProperties, making.present);
    wanted = std::min({wanted, config.maxProperties(), room});
    return std::max(wanted, missing);
}

bool ObjectPart::addFurther(Making& making, std::uint64_t count) {
    const bool isLean = making.context.fullness() != Fullness::Full;
    for (std::uint64_t added = 0, attempt = 0; added < count; ++attempt) {
        if (attempt - added >= attemptsOfFurther)
            return false;
        const std::string name = furtherName(making.context, attempt);
        if (making.further.contains(name) || !mayBeNamed(name))
            continue;
        Demand& demand = propertyDemand(name);
        if (!making.context.isPossible(demand))
            continue;
        if (isLean && demand.height > 0 && making.present >= schema_.minProperties)
            return true;
        added += addMember(making, name, demand) ? 1 : 0;
    }
    return true;
}

/// Adds a member that is none of the properties.
bool ObjectPart::addMember(Making& making, const std::string& name, Demand& demand) {
    if (std::ranges::binary_search(properties_, name, {}, &Property::name))
        return false;
    const jv::TreeBuilder::Checkpoint before = making.out.checkpoint();
    making.out.addKey(name);
    if (!making.context.generate(demand, making.out)) {
        making.out.rollBack(before);
        return false;
    }
    making.further.insert(name);
    ++making.present;
    return true;
}

std::optional<std::string> ObjectPart::nameFor(Context& context, Demand& names) {
    jv::TreeBuilder& scratch = context.scratch();
    if (!context.generate(names, scratch) || !scratch.last()->isString())
        return std::nullopt;
    return std::string(scratch.last()->text());
}

std::string ObjectPart::furtherName(Context& context, std::uint64_t attempt) {
    if (names_ != nullptr && attempt % 2 == 0 && context.isPossible(*names_)) {
        if (std::optional<std::string> name = nameFor(context, *names_))
            return std::move(*name);
    }
    if (!namePatterns_.empty() && attempt % 4 != 3) {
        for (std::size_t i = patternNames_.size(); i < namePatterns_.size(); ++i)
            patternNames_.emplace_back(namePatterns_[i]);
        const egret::Strings& names = patternNames_[attempt % patternNames_.size()];
        if (auto name = names.random(lengthsOfPatternName,
                                     [&](std::uint64_t bound) { return context.random().below(bound); }))
            return std::move(*name);
    }
    // Longer ones when many are taken.
    std::string name;
    addWord(context.random(), 3, lengthOfName + attempt / 100, name);
    return name;
}

} // namespace specloom::jv_generator
