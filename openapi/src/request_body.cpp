#include "openapi/request_body.h"

#include "openapi/node_children.h"

namespace specloom::openapi {

MediaType* RequestBody::createMediaType(Text name) {
    return createChild<MediaType>(content_, this, std::move(name), "Media type already exists");
}

} // namespace specloom::openapi
