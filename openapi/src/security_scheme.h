#pragma once

#include "openapi/oauth_flows.h"

#include <cstdint> // std::uint8_t

namespace specloom::openapi {

/// Security Scheme Object (OpenAPI 3.1.0, section 4.8.27); one class below for each type.
class SecurityScheme : public Node {
  public:
    /// The text of the member "type": "apiKey", "http", "mutualTLS", "oauth2" or "openIdConnect".
    [[nodiscard]] std::string_view typeName() const;
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

  protected:
    SecurityScheme(Node* parent, NodeType type) : Node(parent, type) {}

  private:
    Text description_;
};

enum class ApiKeyLocation : std::uint8_t { Query, Header, Cookie };

/// "query", "header" or "cookie".
[[nodiscard]] std::string_view apiKeyLocationName(ApiKeyLocation location);
/// Compares case-sensitively.
[[nodiscard]] std::optional<ApiKeyLocation> apiKeyLocationFromName(std::string_view name);

class ApiKeySecurityScheme final : public SecurityScheme {
  public:
    ApiKeySecurityScheme(Node* parent, Text name, ApiKeyLocation location)
        : SecurityScheme(parent, NodeType::ApiKeySecurityScheme), name_(std::move(name)),
          location_(location) {}

    [[nodiscard]] std::string_view name() const { return name_.view(); }
    void setName(Text name) { name_ = std::move(name); }
    [[nodiscard]] ApiKeyLocation location() const { return location_; }
    void setLocation(ApiKeyLocation location) { location_ = location; }

  private:
    Text name_;
    ApiKeyLocation location_;
};

class HTTPSecurityScheme final : public SecurityScheme {
  public:
    HTTPSecurityScheme(Node* parent, Text scheme)
        : SecurityScheme(parent, NodeType::HTTPSecurityScheme), scheme_(std::move(scheme)) {}

    [[nodiscard]] std::string_view scheme() const { return scheme_.view(); }
    void setScheme(Text scheme) { scheme_ = std::move(scheme); }
    [[nodiscard]] std::optional<std::string_view> bearerFormat() const { return bearerFormat_.get(); }
    void setBearerFormat(Text bearerFormat) { bearerFormat_ = std::move(bearerFormat); }

  private:
    Text scheme_;
    Text bearerFormat_;
};

class MutualTLSSecurityScheme final : public SecurityScheme {
  public:
    explicit MutualTLSSecurityScheme(Node* parent)
        : SecurityScheme(parent, NodeType::MutualTLSSecurityScheme) {}
};

class OAuth2SecurityScheme final : public SecurityScheme {
  public:
    explicit OAuth2SecurityScheme(Node* parent);

    [[nodiscard]] const OAuthFlows& flows() const { return flows_; }
    [[nodiscard]] OAuthFlows& flows() { return flows_; }

  private:
    OAuthFlows flows_;
};

class OpenIdConnectSecurityScheme final : public SecurityScheme {
  public:
    OpenIdConnectSecurityScheme(Node* parent, Text url)
        : SecurityScheme(parent, NodeType::OpenIdConnectSecurityScheme), openIdConnectUrl_(std::move(url)) {}

    [[nodiscard]] std::string_view openIdConnectUrl() const { return openIdConnectUrl_.view(); }
    void setOpenIdConnectUrl(Text url) { openIdConnectUrl_ = std::move(url); }

  private:
    Text openIdConnectUrl_;
};

} // namespace specloom::openapi
