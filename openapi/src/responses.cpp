#include "openapi/responses.h"

#include "openapi/node_children.h"

namespace specloom::openapi {

Response* Responses::createResponse(Text code) {
    return createChild<Response>(items_, this, std::move(code), "Response already exists");
}

Reference* Responses::addResponseReference(Text code, Node& target) {
    return addReference(items_, this, std::move(code), target, "Response already exists");
}

} // namespace specloom::openapi
