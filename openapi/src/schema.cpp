#include "openapi/schema.h"

#include "foundation/message.h"
#include "openapi/openapi.h"
#include "openapi/reference.h"

#include <algorithm> // std::all_of, std::find, std::lower_bound, std::sort, std::unique

namespace specloom::openapi {

namespace {

template <typename T>
[[nodiscard]] const T& orEmpty(const T* field) {
    static const T empty;
    return field == nullptr ? empty : *field;
}

/// RFC 2045, section 5.1.
[[nodiscard]] bool isToken(std::string_view text) {
    constexpr std::string_view special = "()<>@,;:\\\"/[]?=";
    return !text.empty() && std::all_of(text.begin(), text.end(), [&](char c) {
        return c > ' ' && c < '\x7f' && special.find(c) == std::string_view::npos;
    });
}

[[nodiscard]] bool isMediaType(std::string_view text) {
    text = text.substr(0, text.find(';'));
    while (text.ends_with(' '))
        text.remove_suffix(1);
    const std::size_t slash = text.find('/');
    return slash != std::string_view::npos && isToken(text.substr(0, slash)) &&
           isToken(text.substr(slash + 1));
}

template <typename T>
[[nodiscard]] const T* childOf(const SchemaFields& fields, SchemaKeyword keyword) {
    const auto* node = fields.find<NodePointer>(keyword);
    return node == nullptr ? nullptr : static_cast<const T*>(node->get());
}

} // namespace

const std::array<std::string_view, 5>& schemaDialects() {
    static constexpr std::array<std::string_view, 5> uris{
        "http://json-schema.org/draft-04/schema#", "http://json-schema.org/draft-06/schema#",
        "http://json-schema.org/draft-07/schema#", "https://json-schema.org/draft/2019-09/schema",
        "https://json-schema.org/draft/2020-12/schema"};
    return uris;
}

// ---- texts

void Schema::setDialect(std::string_view uri) {
    const auto& dialects = schemaDialects();
    const auto* const found = std::find(dialects.begin(), dialects.end(), uri);
    if (found == dialects.end())
        throw std::runtime_error(formatMessage("Unknown schema dialect: {}", uri));
    setText(SchemaKeyword::Dialect, Text::borrow(*found));
}

void Schema::setContentEncoding(Text value) {
    if (!isToken(value.view()))
        throw std::runtime_error("Invalid content encoding");
    setText(SchemaKeyword::ContentEncoding, std::move(value));
}

void Schema::setContentMediaType(Text value) {
    if (!isMediaType(value.view()))
        throw std::runtime_error("Invalid content media type");
    setText(SchemaKeyword::ContentMediaType, std::move(value));
}

std::optional<std::string_view> Schema::text(SchemaKeyword keyword) const {
    const auto* field = fields_.find<Text>(keyword);
    return field == nullptr ? std::nullopt : field->get();
}

// ---- types and values

const SchemaFormat* Schema::format() const {
    const auto* field = fields_.find<const SchemaFormat*>(SchemaKeyword::Format);
    return field == nullptr ? nullptr : *field;
}

void Schema::setFormat(const SchemaFormat* format) {
    if (format == nullptr)
        fields_.remove(SchemaKeyword::Format);
    else
        fields_.set(SchemaKeyword::Format, format);
}

const jv::JV* Schema::defaultValue() const {
    const auto* field = fields_.find<Value>(SchemaKeyword::Default);
    return field == nullptr ? nullptr : field->get();
}

const std::vector<Value>& Schema::enumeration() const {
    return orEmpty(fields_.find<std::vector<Value>>(SchemaKeyword::Enum));
}

SchemaExamples Schema::examples() const {
    const auto* entries = fields_.find<std::vector<NamedValue>>(SchemaKeyword::Examples);
    return {entries, entries != nullptr && !entries->empty() && !entries->front().key.isSet()};
}

void Schema::setExamples(std::vector<Value> entries) {
    std::vector<NamedValue> unnamed;
    unnamed.reserve(entries.size());
    for (Value& value : entries)
        unnamed.push_back({Text(), std::move(value)});
    setExamples(std::move(unnamed));
}

// ---- limits and flags

std::optional<std::uint64_t> Schema::count(SchemaKeyword limit) const {
    const auto* field = fields_.find<std::uint64_t>(limit);
    return field == nullptr ? std::nullopt : std::optional(*field);
}

std::optional<number::Number> Schema::number(SchemaKeyword limit) const {
    const auto* field = fields_.find<number::Number>(limit);
    return field == nullptr ? std::nullopt : std::optional(*field);
}

std::optional<bool> Schema::boolean(SchemaKeyword flag) const {
    const auto* field = fields_.find<bool>(flag);
    return field == nullptr ? std::nullopt : std::optional(*field);
}

ExclusiveLimit Schema::exclusiveLimit(SchemaKeyword limit) const {
    if (const auto flag = boolean(limit); flag)
        return *flag;
    if (const auto value = number(limit); value)
        return *value;
    return std::monostate();
}

const std::vector<Text>& Schema::names(SchemaKeyword keyword) const {
    return orEmpty(fields_.find<std::vector<Text>>(keyword));
}

bool Schema::isRequired(std::string_view property) const {
    const std::vector<Text>& sorted = required();
    const auto place =
        std::lower_bound(sorted.begin(), sorted.end(), property,
                         [](const Text& entry, std::string_view wanted) { return entry.view() < wanted; });
    return place != sorted.end() && place->view() == property;
}

void Schema::setRequired(std::vector<Text> properties) {
    std::sort(properties.begin(), properties.end(),
              [](const Text& first, const Text& second) { return first.view() < second.view(); });
    const auto repeated =
        std::unique(properties.begin(), properties.end(),
                    [](const Text& first, const Text& second) { return first.view() == second.view(); });
    properties.erase(repeated, properties.end());
    fields_.set(SchemaKeyword::Required, std::move(properties));
}

const NameMap<std::vector<Text>>& Schema::dependentRequired() const {
    return orEmpty(fields_.find<NameMap<std::vector<Text>>>(SchemaKeyword::DependentRequired));
}

void Schema::setDependentRequired(Text property, std::vector<Text> required) {
    auto& map = fields_.open<NameMap<std::vector<Text>>>(SchemaKeyword::DependentRequired);
    if (auto* present = map.find(property.view()); present != nullptr)
        *present = std::move(required);
    else
        map.add(std::move(property), std::move(required));
}

// ---- sub-schemas

const Node* Schema::node(SchemaKeyword field) const {
    return childOf<Node>(fields_, field);
}

const NodeList& Schema::list(SchemaKeyword keyword) const {
    return orEmpty(fields_.find<NodeList>(keyword));
}

const NodeMap& Schema::map(SchemaKeyword keyword) const {
    return orEmpty(fields_.find<NodeMap>(keyword));
}

Schema* Schema::createSchema(SchemaKeyword field) {
    auto& node = fields_.open<NodePointer>(field);
    if (node == nullptr)
        node = std::make_unique<Schema>(this);
    return static_cast<Schema*>(node->resolve());
}

Reference* Schema::setReference(SchemaKeyword field, Node& target) {
    auto& node = fields_.open<NodePointer>(field);
    node = target.createReference(this);
    return static_cast<Reference*>(node.get());
}

Schema* Schema::addSchema(SchemaKeyword list) {
    return static_cast<Schema*>(
        fields_.open<NodeList>(list).emplace_back(std::make_unique<Schema>(this)).get());
}

Reference* Schema::addReference(SchemaKeyword list, Node& target) {
    return static_cast<Reference*>(
        fields_.open<NodeList>(list).emplace_back(target.createReference(this)).get());
}

Schema* Schema::addSchema(SchemaKeyword map, Text name) {
    auto& schemas = fields_.open<NodeMap>(map);
    if (const NodePointer* present = schemas.find(name.view()); present != nullptr)
        return static_cast<Schema*>((*present)->resolve());
    return static_cast<Schema*>(schemas.add(std::move(name), std::make_unique<Schema>(this)).get());
}

Reference* Schema::addReference(SchemaKeyword map, Text name, Node& target) {
    auto& schemas = fields_.open<NodeMap>(map);
    if (schemas.find(name.view()) != nullptr)
        throw std::runtime_error("Schema already exists");
    return static_cast<Reference*>(schemas.add(std::move(name), target.createReference(this)).get());
}

// ---- OpenAPI's own

const Discriminator* Schema::discriminator() const {
    return childOf<Discriminator>(fields_, SchemaKeyword::Discriminator);
}

Discriminator* Schema::createDiscriminator(Text propertyName) {
    if (has(SchemaKeyword::Discriminator))
        throw std::runtime_error("Discriminator already set");
    NodePointer node = std::make_unique<Discriminator>(this, std::move(propertyName));
    auto* created = static_cast<Discriminator*>(node.get());
    fields_.set(SchemaKeyword::Discriminator, std::move(node));
    return created;
}

const XML* Schema::xml() const {
    return childOf<XML>(fields_, SchemaKeyword::XML);
}

XML* Schema::createXML() {
    if (has(SchemaKeyword::XML))
        throw std::runtime_error("XML already set");
    NodePointer node = std::make_unique<XML>(this);
    auto* created = static_cast<XML*>(node.get());
    fields_.set(SchemaKeyword::XML, std::move(node));
    return created;
}

const ExternalDocumentation* Schema::externalDocs() const {
    return childOf<ExternalDocumentation>(fields_, SchemaKeyword::ExternalDocs);
}

ExternalDocumentation* Schema::createExternalDocs(Text url) {
    if (has(SchemaKeyword::ExternalDocs))
        throw std::runtime_error("ExternalDocs already set");
    NodePointer node = std::make_unique<ExternalDocumentation>(this, std::move(url));
    auto* created = static_cast<ExternalDocumentation*>(node.get());
    fields_.set(SchemaKeyword::ExternalDocs, std::move(node));
    return created;
}

// ---- questions

void Schema::requireOpenAPI30() const {
    if (!documentOf(*this).isVersion30())
        throw std::runtime_error("This operation is only supported in OpenAPI 3.0");
}

void Schema::requireOpenAPI31() const {
    if (!documentOf(*this).isVersion31())
        throw std::runtime_error("This operation is only supported in OpenAPI 3.1");
}

} // namespace specloom::openapi
