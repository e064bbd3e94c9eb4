#include "openapi/encoding.h"

#include "openapi/node_children.h"

namespace specloom::openapi {

Header* Encoding::createHeader(Text name) {
    return createChild<Header>(headers_, this, std::move(name), "Header already exists");
}

Reference* Encoding::addHeaderReference(Text name, Node& target) {
    return addReference(headers_, this, std::move(name), target, "Header already exists");
}

} // namespace specloom::openapi
