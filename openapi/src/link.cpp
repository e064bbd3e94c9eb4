#include "openapi/link.h"

namespace specloom::openapi {

void Link::addParameter(Text name, Value value) {
    if (parameters_.find(name.view()) != nullptr)
        throw std::runtime_error("Link parameter already exists");
    parameters_.add(std::move(name), std::move(value));
}

Server* Link::createServer(Text url) {
    server_ = std::make_unique<Server>(this, std::move(url));
    return server_.get();
}

} // namespace specloom::openapi
