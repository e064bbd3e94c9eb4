#pragma once

#include "openapi/node.h"

#include <utility> // std::move

namespace specloom::openapi {

/// OAuth Flow Object (OpenAPI 3.1.0, section 4.8.29); one class below for each grant type.
class OAuthFlow : public Node {
  public:
    [[nodiscard]] std::optional<std::string_view> authorizationUrl() const { return authorizationUrl_.get(); }
    void setAuthorizationUrl(Text authorizationUrl) { authorizationUrl_ = std::move(authorizationUrl); }
    [[nodiscard]] std::optional<std::string_view> tokenUrl() const { return tokenUrl_.get(); }
    void setTokenUrl(Text tokenUrl) { tokenUrl_ = std::move(tokenUrl); }
    [[nodiscard]] std::optional<std::string_view> refreshUrl() const { return refreshUrl_.get(); }
    void setRefreshUrl(Text refreshUrl) { refreshUrl_ = std::move(refreshUrl); }
    /// Descriptions by scope.
    [[nodiscard]] const NameMap<Text>& scopes() const { return scopes_; }
    /// A scope that is there already gets this description.
    void setScope(Text name, Text description);

  protected:
    OAuthFlow(Node* parent, NodeType type) : Node(parent, type) {}

  private:
    Text authorizationUrl_;
    Text tokenUrl_;
    Text refreshUrl_;
    NameMap<Text> scopes_;
};

class ImplicitOAuthFlow final : public OAuthFlow {
  public:
    explicit ImplicitOAuthFlow(Node* parent) : OAuthFlow(parent, NodeType::ImplicitOAuthFlow) {}
};

class PasswordOAuthFlow final : public OAuthFlow {
  public:
    explicit PasswordOAuthFlow(Node* parent) : OAuthFlow(parent, NodeType::PasswordOAuthFlow) {}
};

class ClientCredentialsOAuthFlow final : public OAuthFlow {
  public:
    explicit ClientCredentialsOAuthFlow(Node* parent)
        : OAuthFlow(parent, NodeType::ClientCredentialsOAuthFlow) {}
};

class AuthorizationCodeOAuthFlow final : public OAuthFlow {
  public:
    explicit AuthorizationCodeOAuthFlow(Node* parent)
        : OAuthFlow(parent, NodeType::AuthorizationCodeOAuthFlow) {}
};

} // namespace specloom::openapi
