#include "openapi/oauth_flows.h"

namespace specloom::openapi {

namespace {

template <typename T>
T* createOnce(std::unique_ptr<T>& flow, Node* owner) {
    if (flow == nullptr)
        flow = std::make_unique<T>(owner);
    return flow.get();
}

} // namespace

ImplicitOAuthFlow* OAuthFlows::createImplicit() {
    return createOnce(implicit_, this);
}

PasswordOAuthFlow* OAuthFlows::createPassword() {
    return createOnce(password_, this);
}

ClientCredentialsOAuthFlow* OAuthFlows::createClientCredentials() {
    return createOnce(clientCredentials_, this);
}

AuthorizationCodeOAuthFlow* OAuthFlows::createAuthorizationCode() {
    return createOnce(authorizationCode_, this);
}

} // namespace specloom::openapi
