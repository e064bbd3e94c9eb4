#pragma once

#include "openapi/discriminator.h"
#include "openapi/external_documentation.h"
#include "openapi/schema_fields.h"
#include "openapi/schema_type.h"
#include "openapi/xml.h"

#include <array>   // std::array
#include <variant> // std::monostate, std::variant
#include <vector>  // std::vector

namespace specloom::openapi {

/// `exclusiveMaximum` and `exclusiveMinimum`: a flag in OpenAPI 3.0, a limit of its own in 3.1.
using ExclusiveLimit = std::variant<std::monostate, bool, number::Number>;

/// The examples of a schema: a map by name, or the array that OpenAPI 3.1 allows, whose entries have no
/// names.
struct SchemaExamples {
    const std::vector<NamedValue>* entries; ///< null when the schema has no examples
    bool isArray;
};

/// Schema Object (OpenAPI 3.0.3, section 4.7.24, and 3.1.0, section 4.8.24) with the keywords of both
/// families side by side. What belongs to which family is for the reader and the writer to decide.
///
/// A boolean as schema: true is a schema without keywords, false one whose `not` is such a schema.
class Schema final : public Node {
  public:
    explicit Schema(Node* parent) : Node(parent, NodeType::Schema) {}

    /// Whether the schema has this keyword. Empty texts, lists and maps count once they were set.
    [[nodiscard]] bool has(SchemaKeyword keyword) const noexcept { return fields_.has(keyword); }
    [[nodiscard]] SchemaKeywords keywords() const noexcept { return fields_.keywords(); }
    [[nodiscard]] std::size_t keywordCount() const noexcept { return fields_.size(); }
    /// Room for so many keywords.
    void reserve(std::size_t keywords) { fields_.reserve(keywords); }

    // ---- texts -------------------------------------------------------------------------------------------
    // Absent when the schema does not have the keyword.

    /// The URI of `$schema`, one of schemaDialects().
    [[nodiscard]] std::optional<std::string_view> dialect() const { return text(SchemaKeyword::Dialect); }
    /// Throws std::runtime_error "Unknown schema dialect: {}".
    void setDialect(std::string_view uri);
    [[nodiscard]] std::optional<std::string_view> id() const { return text(SchemaKeyword::Id); }
    void setId(Text id) { setText(SchemaKeyword::Id, std::move(id)); }
    [[nodiscard]] std::optional<std::string_view> title() const { return text(SchemaKeyword::Title); }
    void setTitle(Text title) { setText(SchemaKeyword::Title, std::move(title)); }
    [[nodiscard]] std::optional<std::string_view> description() const {
        return text(SchemaKeyword::Description);
    }
    void setDescription(Text description) { setText(SchemaKeyword::Description, std::move(description)); }
    [[nodiscard]] std::optional<std::string_view> comment() const { return text(SchemaKeyword::Comment); }
    void setComment(Text comment) { setText(SchemaKeyword::Comment, std::move(comment)); }
    [[nodiscard]] std::optional<std::string_view> anchor() const { return text(SchemaKeyword::Anchor); }
    void setAnchor(Text anchor) { setText(SchemaKeyword::Anchor, std::move(anchor)); }
    [[nodiscard]] std::optional<std::string_view> dynamicAnchor() const {
        return text(SchemaKeyword::DynamicAnchor);
    }
    void setDynamicAnchor(Text dynamicAnchor) {
        setText(SchemaKeyword::DynamicAnchor, std::move(dynamicAnchor));
    }
    [[nodiscard]] std::optional<std::string_view> dynamicRef() const {
        return text(SchemaKeyword::DynamicRef);
    }
    void setDynamicRef(Text dynamicRef) { setText(SchemaKeyword::DynamicRef, std::move(dynamicRef)); }
    [[nodiscard]] std::optional<std::string_view> vocabulary() const {
        return text(SchemaKeyword::Vocabulary);
    }
    void setVocabulary(Text vocabulary) { setText(SchemaKeyword::Vocabulary, std::move(vocabulary)); }
    [[nodiscard]] std::optional<std::string_view> pattern() const { return text(SchemaKeyword::Pattern); }
    void setPattern(Text pattern) { setText(SchemaKeyword::Pattern, std::move(pattern)); }
    [[nodiscard]] std::optional<std::string_view> contentEncoding() const {
        return text(SchemaKeyword::ContentEncoding);
    }
    /// Takes a token of RFC 2045, section 5.1, which all encodings of RFC 2045 and RFC 4648 are. Throws
    /// std::runtime_error "Invalid content encoding".
    void setContentEncoding(Text value);
    [[nodiscard]] std::optional<std::string_view> contentMediaType() const {
        return text(SchemaKeyword::ContentMediaType);
    }
    /// Takes a type and a subtype, both tokens of RFC 2045, section 5.1, and any parameters behind a
    /// semicolon. Throws std::runtime_error "Invalid content media type".
    void setContentMediaType(Text value);

    // ---- types and values --------------------------------------------------------------------------------

    [[nodiscard]] const SchemaTypes& types() const { return types_; }
    void clearTypes() { types_.clear(); }
    /// Throws std::runtime_error "Invalid schema type: " and the name. A type that is there changes nothing.
    void addType(std::string_view name) { types_.add(schemaTypeFromName(name)); }
    void addType(SchemaType type) { types_.add(type); }

    /// The registry's entry, or null.
    [[nodiscard]] const SchemaFormat* format() const;
    /// Null removes it.
    void setFormat(const SchemaFormat* format);

    /// Null when there is none.
    [[nodiscard]] const jv::JV* defaultValue() const;
    void setDefaultValue(Value value) { fields_.set(SchemaKeyword::Default, std::move(value)); }

    /// The values of `enum`, or the one of `const`.
    [[nodiscard]] const std::vector<Value>& enumeration() const;
    void setEnumeration(std::vector<Value> values) { fields_.set(SchemaKeyword::Enum, std::move(values)); }

    [[nodiscard]] SchemaExamples examples() const;
    /// In byte-wise order of the names when they are a map.
    void setExamples(std::vector<NamedValue> entries) {
        fields_.set(SchemaKeyword::Examples, std::move(entries));
    }
    void setExamples(std::vector<Value> entries);

    // ---- limits and flags --------------------------------------------------------------------------------

    [[nodiscard]] std::optional<number::Number> multipleOf() const {
        return number(SchemaKeyword::MultipleOf);
    }
    void setMultipleOf(const number::Number& value) { fields_.set(SchemaKeyword::MultipleOf, value); }
    [[nodiscard]] std::optional<number::Number> maximum() const { return number(SchemaKeyword::Maximum); }
    void setMaximum(const number::Number& value) { fields_.set(SchemaKeyword::Maximum, value); }
    [[nodiscard]] std::optional<number::Number> minimum() const { return number(SchemaKeyword::Minimum); }
    void setMinimum(const number::Number& value) { fields_.set(SchemaKeyword::Minimum, value); }
    [[nodiscard]] ExclusiveLimit exclusiveMaximum() const {
        return exclusiveLimit(SchemaKeyword::ExclusiveMaximum);
    }
    void setExclusiveMaximum(bool value) { fields_.set(SchemaKeyword::ExclusiveMaximum, value); }
    void setExclusiveMaximum(const number::Number& value) {
        fields_.set(SchemaKeyword::ExclusiveMaximum, value);
    }
    [[nodiscard]] ExclusiveLimit exclusiveMinimum() const {
        return exclusiveLimit(SchemaKeyword::ExclusiveMinimum);
    }
    void setExclusiveMinimum(bool value) { fields_.set(SchemaKeyword::ExclusiveMinimum, value); }
    void setExclusiveMinimum(const number::Number& value) {
        fields_.set(SchemaKeyword::ExclusiveMinimum, value);
    }
    [[nodiscard]] std::optional<std::uint64_t> maxLength() const { return count(SchemaKeyword::MaxLength); }
    void setMaxLength(std::uint64_t value) { fields_.set(SchemaKeyword::MaxLength, value); }
    [[nodiscard]] std::optional<std::uint64_t> minLength() const { return count(SchemaKeyword::MinLength); }
    void setMinLength(std::uint64_t value) { fields_.set(SchemaKeyword::MinLength, value); }
    [[nodiscard]] std::optional<std::uint64_t> maxItems() const { return count(SchemaKeyword::MaxItems); }
    void setMaxItems(std::uint64_t value) { fields_.set(SchemaKeyword::MaxItems, value); }
    [[nodiscard]] std::optional<std::uint64_t> minItems() const { return count(SchemaKeyword::MinItems); }
    void setMinItems(std::uint64_t value) { fields_.set(SchemaKeyword::MinItems, value); }
    [[nodiscard]] std::optional<std::uint64_t> maxContains() const {
        return count(SchemaKeyword::MaxContains);
    }
    void setMaxContains(std::uint64_t value) { fields_.set(SchemaKeyword::MaxContains, value); }
    [[nodiscard]] std::optional<std::uint64_t> minContains() const {
        return count(SchemaKeyword::MinContains);
    }
    void setMinContains(std::uint64_t value) { fields_.set(SchemaKeyword::MinContains, value); }
    [[nodiscard]] std::optional<std::uint64_t> maxProperties() const {
        return count(SchemaKeyword::MaxProperties);
    }
    void setMaxProperties(std::uint64_t value) { fields_.set(SchemaKeyword::MaxProperties, value); }
    [[nodiscard]] std::optional<std::uint64_t> minProperties() const {
        return count(SchemaKeyword::MinProperties);
    }
    void setMinProperties(std::uint64_t value) { fields_.set(SchemaKeyword::MinProperties, value); }
    [[nodiscard]] std::optional<bool> uniqueItems() const { return boolean(SchemaKeyword::UniqueItems); }
    void setUniqueItems(bool value) { fields_.set(SchemaKeyword::UniqueItems, value); }
    [[nodiscard]] std::optional<bool> deprecated() const { return boolean(SchemaKeyword::Deprecated); }
    void setDeprecated(bool value) { fields_.set(SchemaKeyword::Deprecated, value); }
    [[nodiscard]] std::optional<bool> readOnly() const { return boolean(SchemaKeyword::ReadOnly); }
    void setReadOnly(bool value) { fields_.set(SchemaKeyword::ReadOnly, value); }
    [[nodiscard]] std::optional<bool> writeOnly() const { return boolean(SchemaKeyword::WriteOnly); }
    void setWriteOnly(bool value) { fields_.set(SchemaKeyword::WriteOnly, value); }
    /// In byte-wise order, each once.
    [[nodiscard]] const std::vector<Text>& required() const { return names(SchemaKeyword::Required); }
    [[nodiscard]] bool isRequired(std::string_view property) const;
    /// In any order; repeated names count once.
    void setRequired(std::vector<Text> properties);

    [[nodiscard]] const NameMap<std::vector<Text>>& dependentRequired() const;
    void setDependentRequired(Text property, std::vector<Text> required);

    // ---- sub-schemas -------------------------------------------------------------------------------------
    // A place holds a schema or a reference to one. The getters of single places resolve; node(), list() and
    // map() give what was written. A factory returns the child that is there, if there is one; setting a
    // reference replaces what is there.

    [[nodiscard]] const Schema* contentSchema() const { return schema(SchemaKeyword::ContentSchema); }
    Schema* createContentSchema() { return createSchema(SchemaKeyword::ContentSchema); }
    Reference* setContentSchemaReference(Node& target) {
        return setReference(SchemaKeyword::ContentSchema, target);
    }
    [[nodiscard]] const Schema* items() const { return schema(SchemaKeyword::Items); }
    Schema* createItems() { return createSchema(SchemaKeyword::Items); }
    Reference* setItemsReference(Node& target) { return setReference(SchemaKeyword::Items, target); }
    [[nodiscard]] const Schema* additionalItems() const { return schema(SchemaKeyword::AdditionalItems); }
    Schema* createAdditionalItems() { return createSchema(SchemaKeyword::AdditionalItems); }
    Reference* setAdditionalItemsReference(Node& target) {
        return setReference(SchemaKeyword::AdditionalItems, target);
    }
    [[nodiscard]] const Schema* contains() const { return schema(SchemaKeyword::Contains); }
    Schema* createContains() { return createSchema(SchemaKeyword::Contains); }
    Reference* setContainsReference(Node& target) { return setReference(SchemaKeyword::Contains, target); }
    [[nodiscard]] const Schema* unevaluatedItems() const { return schema(SchemaKeyword::UnevaluatedItems); }
    Schema* createUnevaluatedItems() { return createSchema(SchemaKeyword::UnevaluatedItems); }
    Reference* setUnevaluatedItemsReference(Node& target) {
        return setReference(SchemaKeyword::UnevaluatedItems, target);
    }
    [[nodiscard]] const Schema* additionalProperties() const {
        return schema(SchemaKeyword::AdditionalProperties);
    }
    Schema* createAdditionalProperties() { return createSchema(SchemaKeyword::AdditionalProperties); }
    Reference* setAdditionalPropertiesReference(Node& target) {
        return setReference(SchemaKeyword::AdditionalProperties, target);
    }
    [[nodiscard]] const Schema* propertyNames() const { return schema(SchemaKeyword::PropertyNames); }
    Schema* createPropertyNames() { return createSchema(SchemaKeyword::PropertyNames); }
    Reference* setPropertyNamesReference(Node& target) {
        return setReference(SchemaKeyword::PropertyNames, target);
    }
    [[nodiscard]] const Schema* unevaluatedProperties() const {
        return schema(SchemaKeyword::UnevaluatedProperties);
    }
    Schema* createUnevaluatedProperties() { return createSchema(SchemaKeyword::UnevaluatedProperties); }
    Reference* setUnevaluatedPropertiesReference(Node& target) {
        return setReference(SchemaKeyword::UnevaluatedProperties, target);
    }
    [[nodiscard]] const Schema* notSchema() const { return schema(SchemaKeyword::Not); }
    Schema* createNot() { return createSchema(SchemaKeyword::Not); }
    Reference* setNotReference(Node& target) { return setReference(SchemaKeyword::Not, target); }
    [[nodiscard]] const Schema* ifSchema() const { return schema(SchemaKeyword::If); }
    Schema* createIf() { return createSchema(SchemaKeyword::If); }
    Reference* setIfReference(Node& target) { return setReference(SchemaKeyword::If, target); }
    [[nodiscard]] const Schema* thenSchema() const { return schema(SchemaKeyword::Then); }
    Schema* createThen() { return createSchema(SchemaKeyword::Then); }
    Reference* setThenReference(Node& target) { return setReference(SchemaKeyword::Then, target); }
    [[nodiscard]] const Schema* elseSchema() const { return schema(SchemaKeyword::Else); }
    Schema* createElse() { return createSchema(SchemaKeyword::Else); }
    Reference* setElseReference(Node& target) { return setReference(SchemaKeyword::Else, target); }
    [[nodiscard]] const NodeList& prefixItems() const { return list(SchemaKeyword::PrefixItems); }
    Schema* addPrefixItems() { return addSchema(SchemaKeyword::PrefixItems); }
    Reference* addPrefixItemsReference(Node& target) {
        return addReference(SchemaKeyword::PrefixItems, target);
    }
    [[nodiscard]] const NodeList& allOf() const { return list(SchemaKeyword::AllOf); }
    Schema* addAllOf() { return addSchema(SchemaKeyword::AllOf); }
    Reference* addAllOfReference(Node& target) { return addReference(SchemaKeyword::AllOf, target); }
    [[nodiscard]] const NodeList& oneOf() const { return list(SchemaKeyword::OneOf); }
    Schema* addOneOf() { return addSchema(SchemaKeyword::OneOf); }
    Reference* addOneOfReference(Node& target) { return addReference(SchemaKeyword::OneOf, target); }
    [[nodiscard]] const NodeList& anyOf() const { return list(SchemaKeyword::AnyOf); }
    Schema* addAnyOf() { return addSchema(SchemaKeyword::AnyOf); }
    Reference* addAnyOfReference(Node& target) { return addReference(SchemaKeyword::AnyOf, target); }
    /// Map members by name; adding a reference under a name that is taken throws std::runtime_error "Schema
    /// already exists".
    [[nodiscard]] const NodeMap& properties() const { return map(SchemaKeyword::Properties); }
    Schema* addProperty(Text name) { return addSchema(SchemaKeyword::Properties, std::move(name)); }
    Reference* addPropertyReference(Text name, Node& target) {
        return addReference(SchemaKeyword::Properties, std::move(name), target);
    }
    [[nodiscard]] const NodeMap& patternProperties() const { return map(SchemaKeyword::PatternProperties); }
    Schema* addPatternProperty(Text name) {
        return addSchema(SchemaKeyword::PatternProperties, std::move(name));
    }
    Reference* addPatternPropertyReference(Text name, Node& target) {
        return addReference(SchemaKeyword::PatternProperties, std::move(name), target);
    }
    [[nodiscard]] const NodeMap& dependentSchemas() const { return map(SchemaKeyword::DependentSchemas); }
    Schema* addDependentSchema(Text name) {
        return addSchema(SchemaKeyword::DependentSchemas, std::move(name));
    }
    Reference* addDependentSchemaReference(Text name, Node& target) {
        return addReference(SchemaKeyword::DependentSchemas, std::move(name), target);
    }
    [[nodiscard]] const NodeMap& definitions() const { return map(SchemaKeyword::Definitions); }
    Schema* addDefinition(Text name) { return addSchema(SchemaKeyword::Definitions, std::move(name)); }
    Reference* addDefinitionReference(Text name, Node& target) {
        return addReference(SchemaKeyword::Definitions, std::move(name), target);
    }
    // The same for code that treats keywords alike.

    /// The schema or reference in a single place, or null.
    [[nodiscard]] const Node* node(SchemaKeyword field) const;
    [[nodiscard]] const Schema* schema(SchemaKeyword field) const { return resolveTo<Schema>(node(field)); }
    [[nodiscard]] const NodeList& list(SchemaKeyword keyword) const;
    [[nodiscard]] const NodeMap& map(SchemaKeyword keyword) const;
    Schema* createSchema(SchemaKeyword field);
    Reference* setReference(SchemaKeyword field, Node& target);
    Schema* addSchema(SchemaKeyword list);
    Reference* addReference(SchemaKeyword list, Node& target);
    Schema* addSchema(SchemaKeyword map, Text name);
    Reference* addReference(SchemaKeyword map, Text name, Node& target);
    /// Makes room, and has the keyword be there even when nothing is added.
    void reserveList(SchemaKeyword list, std::size_t count) { fields_.open<NodeList>(list).reserve(count); }
    void reserveMap(SchemaKeyword map, std::size_t count) { fields_.open<NodeMap>(map).reserve(count); }
    void setCount(SchemaKeyword limit, std::uint64_t value) { fields_.set(limit, value); }
    void setNumber(SchemaKeyword limit, const number::Number& value) { fields_.set(limit, value); }
    void setBoolean(SchemaKeyword flag, bool value) { fields_.set(flag, value); }
    void setText(SchemaKeyword keyword, Text value) { fields_.set(keyword, std::move(value)); }
    [[nodiscard]] std::optional<std::string_view> text(SchemaKeyword keyword) const;
    [[nodiscard]] std::optional<std::uint64_t> count(SchemaKeyword limit) const;
    [[nodiscard]] std::optional<number::Number> number(SchemaKeyword limit) const;
    [[nodiscard]] std::optional<bool> boolean(SchemaKeyword flag) const;
    [[nodiscard]] ExclusiveLimit exclusiveLimit(SchemaKeyword limit) const;

    // ---- OpenAPI's own -----------------------------------------------------------------------------------
    // Null when there is none.

    [[nodiscard]] const Discriminator* discriminator() const;
    /// Throws std::runtime_error "Discriminator already set".
    Discriminator* createDiscriminator(Text propertyName);
    [[nodiscard]] const XML* xml() const;
    /// Throws std::runtime_error "XML already set".
    XML* createXML();
    [[nodiscard]] const ExternalDocumentation* externalDocs() const;
    /// Throws std::runtime_error "ExternalDocs already set".
    ExternalDocumentation* createExternalDocs(Text url);

    // ---- questions ---------------------------------------------------------------------------------------

    /// Throw std::runtime_error "This operation is only supported in OpenAPI 3.0" (3.1) unless the document
    /// is of that family.
    void requireOpenAPI30() const;
    void requireOpenAPI31() const;

    /// Whether the schema accepts, or refuses, every value by its shape alone, so that a boolean could be
    /// written in its place: it has no keywords but `allOf`, `anyOf`, `oneOf` and `not`, and the schemas in
    /// these, also behind references, are such schemas again. Both answer no after 256 schemas, which only
    /// cycles reach.
    [[nodiscard]] bool isAlwaysTrue() const;
    [[nodiscard]] bool isAlwaysFalse() const;

  private:
    [[nodiscard]] const std::vector<Text>& names(SchemaKeyword keyword) const;

    SchemaTypes types_;
    SchemaFields fields_;
};

static_assert(sizeof(Schema) == 80, "most nodes are schemas");

/// The URIs that `$schema` may name: of drafts 4, 6, 7, 2019-09 and 2020-12.
[[nodiscard]] const std::array<std::string_view, 5>& schemaDialects();

} // namespace specloom::openapi
