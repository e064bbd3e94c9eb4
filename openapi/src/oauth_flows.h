#pragma once

#include "openapi/oauth_flow.h"

namespace specloom::openapi {

/// OAuth Flows Object (OpenAPI 3.1.0, section 4.8.28).
class OAuthFlows final : public Node {
  public:
    explicit OAuthFlows(Node* parent) : Node(parent, NodeType::OAuthFlows) {}

    // Null where there is none. The factories return the one that is there.
    [[nodiscard]] const ImplicitOAuthFlow* implicit() const { return implicit_.get(); }
    ImplicitOAuthFlow* createImplicit();
    [[nodiscard]] const PasswordOAuthFlow* password() const { return password_.get(); }
    PasswordOAuthFlow* createPassword();
    [[nodiscard]] const ClientCredentialsOAuthFlow* clientCredentials() const {
        return clientCredentials_.get();
    }
    ClientCredentialsOAuthFlow* createClientCredentials();
    [[nodiscard]] const AuthorizationCodeOAuthFlow* authorizationCode() const {
        return authorizationCode_.get();
    }
    AuthorizationCodeOAuthFlow* createAuthorizationCode();

  private:
    std::unique_ptr<ImplicitOAuthFlow> implicit_;
    std::unique_ptr<PasswordOAuthFlow> password_;
    std::unique_ptr<ClientCredentialsOAuthFlow> clientCredentials_;
    std::unique_ptr<AuthorizationCodeOAuthFlow> authorizationCode_;
};

} // namespace specloom::openapi
