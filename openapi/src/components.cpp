#include "openapi/components.h"

#include "openapi/reference.h"

#include <algorithm> // std::all_of

namespace specloom::openapi {

namespace {

struct SectionInfo {
    std::string_view key;
    const char* taken;
};

constexpr std::array<SectionInfo, componentSectionCount> sectionInfos{{
    {"schemas", "Schema already exists"},
    {"responses", "Response already exists"},
    {"parameters", "Parameter already exists"},
    {"examples", "Example already exists"},
    {"requestBodies", "Request body already exists"},
    {"headers", "Header already exists"},
    {"securitySchemes", "Security scheme already exists"},
    {"links", "Link already exists"},
    {"callbacks", "Callback already exists"},
    {"pathItems", "Path item already exists"},
}};

[[nodiscard]] const SectionInfo& infoOf(ComponentSection section) {
    return sectionInfos.at(static_cast<std::size_t>(section));
}

} // namespace

std::string_view componentSectionKey(ComponentSection section) {
    return infoOf(section).key;
}

std::optional<ComponentSection> componentSectionOf(NodeType type) {
    switch (type) {
    case NodeType::Schema:
        return ComponentSection::Schemas;
    case NodeType::Response:
        return ComponentSection::Responses;
    case NodeType::Parameter:
    case NodeType::PathParameter:
    case NodeType::QueryParameter:
    case NodeType::HeaderParameter:
    case NodeType::CookieParameter:
        return ComponentSection::Parameters;
    case NodeType::Example:
        return ComponentSection::Examples;
    case NodeType::RequestBody:
        return ComponentSection::RequestBodies;
    case NodeType::Header:
        return ComponentSection::Headers;
    case NodeType::SecurityScheme:
    case NodeType::ApiKeySecurityScheme:
    case NodeType::HTTPSecurityScheme:
    case NodeType::MutualTLSSecurityScheme:
    case NodeType::OAuth2SecurityScheme:
    case NodeType::OpenIdConnectSecurityScheme:
        return ComponentSection::SecuritySchemes;
    case NodeType::Link:
        return ComponentSection::Links;
    case NodeType::Callback:
        return ComponentSection::Callbacks;
    case NodeType::PathItem:
        return ComponentSection::PathItems;
    default:
        return std::nullopt;
    }
}

bool Components::empty() const {
    return std::all_of(sections_.begin(), sections_.end(),
                       [](const NamedNodes& section) { return section.empty(); });
}

std::optional<std::string_view> Components::nameOf(const Node* node) const {
    if (node->type() == NodeType::Reference) {
        for (const NamedNodes& section : sections_) {
            if (const auto name = section.nameOf(node); name)
                return name;
        }
        return std::nullopt;
    }
    const auto section = componentSectionOf(node->type());
    return section ? this->section(*section).nameOf(node) : std::nullopt;
}

const Schema* Components::schema(std::string_view name) const {
    return resolveTo<Schema>(schemas().find(name));
}

const Response* Components::response(std::string_view name) const {
    return resolveTo<Response>(responses().find(name));
}

const Parameter* Components::parameter(std::string_view name) const {
    return resolveTo<Parameter>(parameters().find(name));
}

const Example* Components::example(std::string_view name) const {
    return resolveTo<Example>(examples().find(name));
}

const RequestBody* Components::requestBody(std::string_view name) const {
    return resolveTo<RequestBody>(requestBodies().find(name));
}

const Header* Components::header(std::string_view name) const {
    return resolveTo<Header>(headers().find(name));
}

const SecurityScheme* Components::securityScheme(std::string_view name) const {
    return resolveTo<SecurityScheme>(securitySchemes().find(name));
}

const Link* Components::link(std::string_view name) const {
    return resolveTo<Link>(links().find(name));
}

const Callback* Components::callback(std::string_view name) const {
    return resolveTo<Callback>(callbacks().find(name));
}

const PathItem* Components::pathItem(std::string_view name) const {
    return resolveTo<PathItem>(pathItems().find(name));
}

template <typename T, typename... Arguments>
T* Components::create(ComponentSection section, Text name, Arguments&&... arguments) {
    NamedNodes& nodes = sections_.at(static_cast<std::size_t>(section));
    if (nodes.find(name.view()) != nullptr)
        throw std::runtime_error(infoOf(section).taken);
    auto node = std::make_unique<T>(this, std::forward<Arguments>(arguments)...);
    return static_cast<T*>(&nodes.add(std::move(name), std::move(node)));
}

Schema* Components::createSchema(Text name) {
    return create<Schema>(ComponentSection::Schemas, std::move(name));
}

Response* Components::createResponse(Text name) {
    return create<Response>(ComponentSection::Responses, std::move(name));
}

PathParameter* Components::createPathParameter(Text key, Text name) {
    return create<PathParameter>(ComponentSection::Parameters, std::move(key), std::move(name));
}

QueryParameter* Components::createQueryParameter(Text key, Text name) {
    return create<QueryParameter>(ComponentSection::Parameters, std::move(key), std::move(name));
}

HeaderParameter* Components::createHeaderParameter(Text key, Text name) {
    return create<HeaderParameter>(ComponentSection::Parameters, std::move(key), std::move(name));
}

CookieParameter* Components::createCookieParameter(Text key, Text name) {
    return create<CookieParameter>(ComponentSection::Parameters, std::move(key), std::move(name));
}

Example* Components::createExample(Text name) {
    return create<Example>(ComponentSection::Examples, std::move(name));
}

RequestBody* Components::createRequestBody(Text name) {
    return create<RequestBody>(ComponentSection::RequestBodies, std::move(name));
}

Header* Components::createHeader(Text name) {
    return create<Header>(ComponentSection::Headers, std::move(name));
}

ApiKeySecurityScheme* Components::createApiKeySecurityScheme(Text name, Text keyName,
                                                             ApiKeyLocation location) {
    return create<ApiKeySecurityScheme>(ComponentSection::SecuritySchemes, std::move(name),
                                        std::move(keyName), location);
}

HTTPSecurityScheme* Components::createHTTPSecurityScheme(Text name, Text scheme) {
    return create<HTTPSecurityScheme>(ComponentSection::SecuritySchemes, std::move(name), std::move(scheme));
}

MutualTLSSecurityScheme* Components::createMutualTLSSecurityScheme(Text name) {
    return create<MutualTLSSecurityScheme>(ComponentSection::SecuritySchemes, std::move(name));
}

OAuth2SecurityScheme* Components::createOAuth2SecurityScheme(Text name) {
    return create<OAuth2SecurityScheme>(ComponentSection::SecuritySchemes, std::move(name));
}

OpenIdConnectSecurityScheme* Components::createOpenIdConnectSecurityScheme(Text name, Text url) {
    return create<OpenIdConnectSecurityScheme>(ComponentSection::SecuritySchemes, std::move(name),
                                               std::move(url));
}

Link* Components::createLink(Text name) {
    return create<Link>(ComponentSection::Links, std::move(name));
}

Callback* Components::createCallback(Text name) {
    return create<Callback>(ComponentSection::Callbacks, std::move(name));
}

PathItem* Components::createPathItem(Text name) {
    return create<PathItem>(ComponentSection::PathItems, std::move(name));
}

Reference* Components::addReference(ComponentSection section, Text name, Node& target) {
    NamedNodes& nodes = sections_.at(static_cast<std::size_t>(section));
    if (nodes.find(name.view()) != nullptr)
        throw std::runtime_error(infoOf(section).taken);
    return static_cast<Reference*>(&nodes.add(std::move(name), target.createReference(this)));
}

} // namespace specloom::openapi
