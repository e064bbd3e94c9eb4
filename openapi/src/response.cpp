#include "openapi/response.h"

#include "openapi/node_children.h"

namespace specloom::openapi {

Header* Response::createHeader(Text name) {
    return createChild<Header>(headers_, this, std::move(name), "Header already exists");
}

Reference* Response::addHeaderReference(Text name, Node& target) {
    return addReference(headers_, this, std::move(name), target, "Header already exists");
}

MediaType* Response::createMediaType(Text name) {
    return createChild<MediaType>(content_, this, std::move(name), "Media type already exists");
}

Link* Response::createLink(Text name) {
    return createChild<Link>(links_, this, std::move(name), "Link already exists");
}

Reference* Response::addLinkReference(Text name, Node& target) {
    return addReference(links_, this, std::move(name), target, "Link already exists");
}

} // namespace specloom::openapi
