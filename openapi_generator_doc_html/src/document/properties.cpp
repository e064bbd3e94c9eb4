#include "openapi_generator_doc_html/document/properties.h"

#include "openapi/media_type.h"
#include "openapi/openapi.h"
#include "openapi/reference.h"
#include "openapi_generator_doc_html/document/component_name.h"
#include "openapi_generator_doc_html/document/document_order.h"
#include "openapi_generator_doc_html/document/json_text.h"
#include "openapi_generator_doc_html/document/type_text.h"

#include <cstddef>       // std::size_t
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set
#include <utility>       // std::move

namespace specloom::openapi_generator::doc_html {

namespace {

using jv::JV;
using openapi::Node;
using openapi::Schema;
using openapi::SchemaKeyword;

/// Members of `allOf` that are found by references, or in place alone.
enum class Reach { References, InPlace };

[[nodiscard]] std::optional<std::string> ownedText(std::optional<std::string_view> text) {
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

[[nodiscard]] std::vector<Constraint> constraintsOf(const Schema& schema) {
    std::vector<Constraint> constraints;
    const auto add = [&](std::string_view name, const auto& value) {
        if (value)
            constraints.push_back({name, number::Number(*value).toString()});
    };
    add("minimum", schema.minimum());
    add("maximum", schema.maximum());
    add("minLength", schema.minLength());
    add("maxLength", schema.maxLength());
    add("minItems", schema.minItems());
    add("maxItems", schema.maxItems());
    add("minProperties", schema.minProperties());
    add("maxProperties", schema.maxProperties());
    return constraints;
}

[[nodiscard]] std::vector<std::string> enumerationOf(const Schema& schema) {
    std::vector<std::string> texts;
    for (const openapi::Value& value : schema.enumeration())
        texts.push_back(value->isString() ? std::string(value->text()) : jsonText(*value, JsonForm::Compact));
    return texts;
}

[[nodiscard]] bool isNullOnly(const Node& node) {
    const auto* schema = openapi::resolveTo<Schema>(&node);
    return schema != nullptr && schema->types().size() == 1 &&
           schema->types().single() == openapi::SchemaType::Null;
}

/// The one reference among alternatives of which the others are null.
[[nodiscard]] const Node* onlyReference(const openapi::NodeList& alternatives) {
    const Node* reference = nullptr;
    for (const openapi::NodePointer& alternative : alternatives) {
        if (isNullOnly(*alternative))
            continue;
        if (reference != nullptr || alternative->type() != openapi::NodeType::Reference)
            return nullptr;
        reference = alternative.get();
    }
    return reference;
}

/// What tells about a schema in its place: the items of an array, the one reference that it is made of.
[[nodiscard]] const Node* toldBy(const Schema& schema) {
    if (const Node* items = schema.node(SchemaKeyword::Items))
        return items;
    if (!schema.properties().empty())
        return nullptr;
    for (const openapi::NodePointer& part : schema.allOf()) {
        if (part->type() == openapi::NodeType::Reference)
            return part.get();
    }
    const Node* alternative = onlyReference(schema.anyOf());
    return alternative != nullptr ? alternative : onlyReference(schema.oneOf());
}

/// The component that tells about the value of a schema that stands somewhere.
[[nodiscard]] std::optional<std::string> resourceOf(const Node* node) {
    while (node != nullptr) {
        if (node->type() == openapi::NodeType::Reference) {
            const auto name = componentNameOf(static_cast<const openapi::Reference&>(*node));
            return name ? std::optional<std::string>(name->name) : std::nullopt;
        }
        node = toldBy(static_cast<const Schema&>(*node));
    }
    return std::nullopt;
}

/// What stands beside a `$ref` holds for schemas from OpenAPI 3.1 on (JSON Schema, section 8.2.3.1).
[[nodiscard]] std::optional<std::string> descriptionOf(const Node& node) {
    const JV* source = node.source();
    if (node.type() == openapi::NodeType::Reference && source != nullptr &&
        openapi::documentOf(node).isVersion31()) {
        const JV* own = source->get("description");
        if (own != nullptr && own->isString())
            return std::string(own->text());
    }
    const auto* schema = openapi::resolveTo<Schema>(&node);
    return schema == nullptr ? std::nullopt : ownedText(schema->description());
}

class PropertyTable {
  public:
    PropertyTable(Reach reach, std::size_t depth) : reach_(reach), depth_(depth) {}

    [[nodiscard]] std::vector<Property> read(const Node* node) {
        const Schema* schema = describedObject(node);
        if (schema == nullptr)
            return {};
        std::vector<const Schema*> waiting{schema};
        while (!waiting.empty()) {
            const Schema& next = *waiting.back();
            waiting.pop_back();
            if (seen_.insert(&next).second)
                add(next, waiting);
        }
        for (const std::string_view name : required_) {
            if (const auto known = places_.find(name); known != places_.end())
                rows_[known->second].required = true;
        }
        return std::move(rows_);
    }

  private:
    /// The schema itself, or that of the items of an array.
    [[nodiscard]] const Schema* describedObject(const Node* node) const {
        std::unordered_set<const Node*> passed;
        while (node != nullptr && passed.insert(node).second) {
            if (node->type() == openapi::NodeType::Reference && reach_ == Reach::InPlace)
                return nullptr;
            const auto* schema = openapi::resolveTo<Schema>(node);
            if (schema == nullptr || schema->node(SchemaKeyword::Items) == nullptr ||
                !schema->properties().empty())
                return schema;
            node = schema->node(SchemaKeyword::Items);
        }
        return nullptr;
    }

    void add(const Schema& schema, std::vector<const Schema*>& waiting) {
        for (const openapi::Text& name : schema.required())
            required_.push_back(name.view());
        for (const openapi::NodeMap::Entry* entry : inDocumentOrder(schema.properties())) {
            if (places_.try_emplace(entry->name(), rows_.size()).second)
                rows_.push_back(row(entry->name(), *entry->value));
        }
        const openapi::NodeList& parts = schema.allOf();
        for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
            const bool isReference = (*part)->type() == openapi::NodeType::Reference;
            const auto* member = openapi::resolveTo<Schema>(part->get());
            if (member != nullptr && (!isReference || reach_ == Reach::References))
                waiting.push_back(member);
        }
    }

    [[nodiscard]] Property row(std::string_view name, const Node& node) const;

    Reach reach_;
    std::size_t depth_;
    std::vector<Property> rows_;
    std::unordered_map<std::string_view, std::size_t> places_; ///< of rows, by name
    std::vector<std::string_view> required_;
    std::unordered_set<const Schema*> seen_;
};

/// All of a row but its name, whether it is required, and what stands below it.
[[nodiscard]] Property describe(const Node* node) {
    Property property;
    property.type = typeText(node);
    const auto* schema = openapi::resolveTo<Schema>(node);
    if (schema == nullptr)
        return property;
    property.deprecated = schema->deprecated().value_or(false);
    property.constraints = constraintsOf(*schema);
    property.enumeration = enumerationOf(*schema);
    property.description = descriptionOf(*node);
    property.resource = resourceOf(node);
    return property;
}

Property PropertyTable::row(std::string_view name, const Node& node) const {
    Property property = describe(&node);
    property.name = name;
    if (depth_ < deepestPropertyTable)
        property.properties = PropertyTable(Reach::InPlace, depth_ + 1).read(&node);
    return property;
}

[[nodiscard]] const Node* schemaNodeOf(const openapi::Parameter& parameter) {
    if (parameter.value().mode() != openapi::SchemaOrContent::Mode::Content)
        return parameter.value().schemaNode();
    const openapi::MediaType* mediaType = parameter.value().mediaType();
    return mediaType == nullptr ? nullptr : mediaType->schemaNode();
}

} // namespace

std::vector<Property> propertiesOf(const openapi::Node* schema) {
    return PropertyTable(Reach::References, 1).read(schema);
}

Property propertyOf(const openapi::Node* schema) {
    Property property = describe(schema);
    property.properties = PropertyTable(Reach::InPlace, 1).read(schema);
    return property;
}

Property propertyOf(const openapi::Parameter& parameter) {
    Property property = propertyOf(schemaNodeOf(parameter));
    property.name = parameter.name();
    property.required = parameter.isRequired();
    property.deprecated = property.deprecated || parameter.deprecated().value_or(false);
    if (parameter.description())
        property.description = std::string(*parameter.description());
    return property;
}

} // namespace specloom::openapi_generator::doc_html
