#include "egret/strings.h"
#include "jv_generator/composite_parts.h"
#include "jv_generator/texts.h"

#include <algorithm> // std::max, std::min, std::ranges::any_of, std::ranges::binary_search, std::ranges::sort
#include <memory>    // std::make_unique

namespace specloom::jv_generator {

namespace {

constexpr std::uint64_t usualFurther = 3;       ///< members of an object that knows no names
constexpr std::uint64_t attemptsOfFurther = 50; ///< for one member
constexpr std::uint64_t lengthOfName = 8;

} // namespace

ObjectPart::ObjectPart(GenFactory& factory, MergedSchema schema,
                       std::vector<GenFactory::Discriminating> discriminating)
    : factory_(&factory), schema_(std::move(schema)), discriminating_(std::move(discriminating)) {
    for (const SchemaNode* node : schema_.nodes) {
        if (node->propertyNames != noSchema)
            nameSchemas_.push_back(node->propertyNames);
        for (const NamedSchema& property : node->patternProperties)
            namePatterns_.push_back(property.name);
        if (node->additionalProperties != noSchema) {
            const SchemaNode& additional = factory.graph().node(node->additionalProperties);
            isMap_ |= !additional.isFalse && additional.source != nullptr && additional.source->isObject();
        }
    }
    if (!nameSchemas_.empty()) {
        std::vector<SchemaId> schemas = nameSchemas_;
        schemas.push_back(factory.graph().ofKinds(value_kind::string));
        names_ = &factory.demand(std::move(schemas));
    }
    addProperties();
    isMap_ = (isMap_ || !namePatterns_.empty()) && properties_.empty();
    addNeeds();
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
        Property& property = properties_.emplace_back(Property{name, &propertyDemand(name), isRequired});
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

bool ObjectPart::mayBeNamed(std::string_view name) const {
    return names_ == nullptr || factory_->admits(*names_, jv::JV(name));
}

bool ObjectPart::canHave(Context& context, Property& property) {
    if (!property.isAsked) {
        property.isAsked = true;
        property.isPossible = mayBeNamed(property.name) && context.isPossible(*property.demand);
        property.isScalar = property.isPossible && property.demand->height == 0;
    }
    return property.isPossible;
}

std::uint64_t ObjectPart::optionalCount(Context& context, std::uint64_t required,
                                        std::uint64_t possible) const {
    const GeneratorConfig& config = factory_->config();
    const std::uint64_t room = schema_.maxProperties - required;
    const std::uint64_t missing = schema_.minProperties > required ? schema_.minProperties - required : 0;
    std::uint64_t wanted = config.maxProperties();
    if (context.fullness() == Fullness::Required)
        wanted = 0;
    return std::min({std::max(wanted, missing), room, possible});
}

bool ObjectPart::add(Context& context, const Property& property, jv::JV& out) const {
    auto value = std::make_unique<jv::JV>();
    if (property.text != nullptr) {
        // The name that a discriminator expects, where the schema allows it.
        value->setString(*property.text);
        if (factory_->admits(*property.demand, *value)) {
            out.set(property.name, std::move(value));
            return true;
        }
    }
    if (!context.generate(*property.demand, *value))
        return false;
    out.set(property.name, std::move(value));
    return true;
}

bool ObjectPart::generate(Context& context, jv::JV& out) {
    out.setNull();
    out.makeObject();
    // Fullness is that of the outside: it changes while members are made.
    std::vector<Property*> optional;
    const Fullness fullness = context.fullness();
    for (Property& property : properties_) {
        if (property.isRequired ||
            !(fullness != Fullness::Required || schema_.minProperties > required_ ||
              property.text != nullptr) ||
            !canHave(context, property))
            continue;
        if (fullness == Fullness::Full || property.isScalar || schema_.minProperties > required_)
            optional.push_back(&property);
    }
    std::uint64_t wanted = optionalCount(context, required_, optional.size());
    std::uint64_t left = optional.size();
    std::size_t nextOptional = 0;
    for (const Property& property : properties_) {
        bool isTaken = property.isRequired;
        if (!isTaken && nextOptional < optional.size() && optional[nextOptional] == &property) {
            ++nextOptional;
            // Each choice of so many is as likely as the others.
            isTaken = (wanted >= left || property.text != nullptr ||
                       (wanted > 0 && context.random().below(left) < wanted)) &&
                      out.size() < schema_.maxProperties;
            --left;
            wanted -= isTaken && wanted > 0 ? 1 : 0;
        }
        if (!isTaken)
            continue;
        if (!add(context, property, out) && property.isRequired)
            return context.fail(schema_.place, "a property that it requires was not found");
    }
    const std::uint64_t further = furtherCount(context, out.size());
    if (further > 0 && !addFurther(context, further, out) && out.size() < schema_.minProperties)
        return context.fail(schema_.place, "it requires more properties than were found");
    return true;
}

/// Members of names that the schema does not know: as many as are missing, or some where it is all about
/// them.
std::uint64_t ObjectPart::furtherCount(Context& context, std::uint64_t present) const {
    const GeneratorConfig& config = factory_->config();
    const std::uint64_t missing = schema_.minProperties > present ? schema_.minProperties - present : 0;
    std::uint64_t wanted = 0;
    if (isMap_ && context.fullness() != Fullness::Required)
        wanted = context.random().between(std::max<std::uint64_t>(config.minProperties(), 1),
                                          std::max(config.minProperties(), usualFurther));
    wanted = std::min({wanted, config.maxProperties(), schema_.maxProperties - present});
    return std::max(wanted, missing);
}

bool ObjectPart::addFurther(Context& context, std::uint64_t count, jv::JV& out) {
    const bool isLean = context.fullness() != Fullness::Full;
    for (std::uint64_t added = 0, attempt = 0; added < count; ++attempt) {
        if (attempt - added >= attemptsOfFurther)
            return false;
        const std::string name = furtherName(context, attempt);
        if (out.has(name) || std::ranges::binary_search(properties_, name, {}, &Property::name))
            continue;
        Demand& demand = propertyDemand(name);
        if (!mayBeNamed(name) || !context.isPossible(demand))
            continue;
        if (isLean && demand.height > 0 && out.size() >= schema_.minProperties)
            return true;
        auto value = std::make_unique<jv::JV>();
        if (!context.generate(demand, *value))
            continue;
        out.set(name, std::move(value));
        ++added;
    }
    return true;
}

std::string ObjectPart::furtherName(Context& context, std::uint64_t attempt) {
    if (names_ != nullptr && attempt % 2 == 0 && context.isPossible(*names_)) {
        jv::JV name;
        if (context.generate(*names_, name) && name.isString())
            return std::string(name.text());
    }
    if (!namePatterns_.empty() && attempt % 4 != 3) {
        const egret::Strings strings(namePatterns_[attempt % namePatterns_.size()]);
        if (auto name =
                strings.random({1, 32}, [&](std::uint64_t bound) { return context.random().below(bound); }))
            return *name;
    }
    // Longer ones when many are taken.
    return word(context.random(), 3, lengthOfName + attempt / 100);
}

} // namespace specloom::jv_generator
