#pragma once

#include "openapi/callback.h"
#include "openapi/example.h"
#include "openapi/header.h"
#include "openapi/link.h"
#include "openapi/named_nodes.h"
#include "openapi/parameter.h"
#include "openapi/path_item.h"
#include "openapi/request_body.h"
#include "openapi/response.h"
#include "openapi/schema.h"
#include "openapi/security_scheme.h"

#include <array> // std::array

namespace specloom::openapi {

/// The sections of Components, in the order in which they are written.
enum class ComponentSection : std::uint8_t {
    Schemas,
    Responses,
    Parameters,
    Examples,
    RequestBodies,
    Headers,
    SecuritySchemes,
    Links,
    Callbacks,
    PathItems,
};

inline constexpr std::size_t componentSectionCount = 10;

/// The key of a section: "schemas" and so on.
[[nodiscard]] std::string_view componentSectionKey(ComponentSection section);
/// The section whose entries are of this type; none for types that are no components.
[[nodiscard]] std::optional<ComponentSection> componentSectionOf(NodeType type);

/// Components Object (OpenAPI 3.1.0, section 4.8.7): objects, or references to another of the same section,
/// by name.
class Components final : public Node {
  public:
    explicit Components(Node* parent) : Node(parent, NodeType::Components) {}

    [[nodiscard]] const NamedNodes& section(ComponentSection section) const {
        return sections_.at(static_cast<std::size_t>(section));
    }
    /// Whether all sections are empty.
    [[nodiscard]] bool empty() const;
    /// The name under which an entry stands; empty for any node that is no entry.
    [[nodiscard]] std::optional<std::string_view> nameOf(const Node* node) const;
    void reserve(ComponentSection section, std::size_t count) {
        sections_.at(static_cast<std::size_t>(section)).reserve(count);
    }

    [[nodiscard]] const NamedNodes& schemas() const { return section(ComponentSection::Schemas); }
    [[nodiscard]] const NamedNodes& responses() const { return section(ComponentSection::Responses); }
    [[nodiscard]] const NamedNodes& parameters() const { return section(ComponentSection::Parameters); }
    [[nodiscard]] const NamedNodes& examples() const { return section(ComponentSection::Examples); }
    [[nodiscard]] const NamedNodes& requestBodies() const { return section(ComponentSection::RequestBodies); }
    [[nodiscard]] const NamedNodes& headers() const { return section(ComponentSection::Headers); }
    [[nodiscard]] const NamedNodes& securitySchemes() const {
        return section(ComponentSection::SecuritySchemes);
    }
    [[nodiscard]] const NamedNodes& links() const { return section(ComponentSection::Links); }
    [[nodiscard]] const NamedNodes& callbacks() const { return section(ComponentSection::Callbacks); }
    [[nodiscard]] const NamedNodes& pathItems() const { return section(ComponentSection::PathItems); }

    /// The entry as stored, or null.
    [[nodiscard]] Node* find(ComponentSection section, std::string_view name) {
        return sections_.at(static_cast<std::size_t>(section)).find(name);
    }

    // The resolved component of exactly that name, or null.
    [[nodiscard]] const Schema* schema(std::string_view name) const;
    [[nodiscard]] const Response* response(std::string_view name) const;
    [[nodiscard]] const Parameter* parameter(std::string_view name) const;
    [[nodiscard]] const Example* example(std::string_view name) const;
    [[nodiscard]] const RequestBody* requestBody(std::string_view name) const;
    [[nodiscard]] const Header* header(std::string_view name) const;
    [[nodiscard]] const SecurityScheme* securityScheme(std::string_view name) const;
    [[nodiscard]] const Link* link(std::string_view name) const;
    [[nodiscard]] const Callback* callback(std::string_view name) const;
    [[nodiscard]] const PathItem* pathItem(std::string_view name) const;

    // All factories throw std::runtime_error with the kind and " already exists": "Schema already exists",
    // "Response ...", "Parameter ...", "Example ...", "Request body ...", "Header ...", "Security scheme
    // ...", "Link ...", "Callback ...", "Path item ...".
    Schema* createSchema(Text name);
    Response* createResponse(Text name);
    PathParameter* createPathParameter(Text key, Text name);
    QueryParameter* createQueryParameter(Text key, Text name);
    HeaderParameter* createHeaderParameter(Text key, Text name);
    CookieParameter* createCookieParameter(Text key, Text name);
    Example* createExample(Text name);
    RequestBody* createRequestBody(Text name);
    Header* createHeader(Text name);
    ApiKeySecurityScheme* createApiKeySecurityScheme(Text name, Text keyName, ApiKeyLocation location);
    HTTPSecurityScheme* createHTTPSecurityScheme(Text name, Text scheme);
    MutualTLSSecurityScheme* createMutualTLSSecurityScheme(Text name);
    OAuth2SecurityScheme* createOAuth2SecurityScheme(Text name);
    OpenIdConnectSecurityScheme* createOpenIdConnectSecurityScheme(Text name, Text url);
    Link* createLink(Text name);
    Callback* createCallback(Text name);
    PathItem* createPathItem(Text name);
    /// An entry that refers to `target`, which belongs into that section too.
    Reference* addReference(ComponentSection section, Text name, Node& target);

  private:
    template <typename T, typename... Arguments>
    T* create(ComponentSection section, Text name, Arguments&&... arguments);

    std::array<NamedNodes, componentSectionCount> sections_;
};

} // namespace specloom::openapi
