#include "openapi/components.h"

#include "openapi/reference.h"
#include "openapi/shape.h"

#include <algorithm> // std::all_of, std::ranges::equal

namespace specloom::openapi {

namespace {

/// By section: what is said when a name is taken.
constexpr std::array<const char*, componentSectionCount> takenTexts{
    "Schema already exists",          "Response already exists",     "Parameter already exists",
    "Example already exists",         "Request body already exists", "Header already exists",
    "Security scheme already exists", "Link already exists",         "Callback already exists",
    "Path item already exists",
};

static_assert(std::size(shape::components) == componentSectionCount,
              "a section for each member of components");
static_assert(
    [] {
        constexpr ObjectKind kinds[] = {
            ObjectKind::Schema,      ObjectKind::Response, ObjectKind::Parameter,      ObjectKind::Example,
            ObjectKind::RequestBody, ObjectKind::Header,   ObjectKind::SecurityScheme, ObjectKind::Link,
            ObjectKind::Callback,    ObjectKind::PathItem};
        return std::ranges::equal(shape::components, kinds, {}, &MemberShape::kind);
    }(),
    "components stand in the order of ComponentSection");

[[nodiscard]] const char* takenText(ComponentSection section) {
    return takenTexts.at(static_cast<std::size_t>(section));
}

} // namespace

std::string_view componentSectionKey(ComponentSection section) {
    constexpr auto members = std::to_array(shape::components);
    return members.at(static_cast<std::size_t>(section)).name;
}

std::optional<ComponentSection> componentSectionOf(NodeType type) {
    constexpr auto sections = [] {
        std::array<std::optional<ComponentSection>, nodeTypeCount> table{};
        for (std::size_t at = 0; at < table.size(); ++at)
            for (std::size_t section = 0; section < componentSectionCount; ++section)
                if (shape::components[section].kind == kindOf(static_cast<NodeType>(at)))
                    table[at] = static_cast<ComponentSection>(section);
        return table;
    }();
    return sections.at(static_cast<std::size_t>(type));
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
        throw std::runtime_error(takenText(section));
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
        throw std::runtime_error(takenText(section));
    return static_cast<Reference*>(&nodes.add(std::move(name), target.createReference(this)));
}

} // namespace specloom::openapi
