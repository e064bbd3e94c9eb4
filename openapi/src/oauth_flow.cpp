#include "openapi/oauth_flow.h"

namespace specloom::openapi {

void OAuthFlow::setScope(Text name, Text description) {
    if (Text* present = scopes_.find(name.view()); present != nullptr)
        *present = std::move(description);
    else
        scopes_.add(std::move(name), std::move(description));
}

} // namespace specloom::openapi
