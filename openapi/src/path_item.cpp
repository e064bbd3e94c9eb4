#include "openapi/path_item.h"

#include "openapi/reference.h"

namespace specloom::openapi {

Operation* PathItem::createOperation(OperationType type) {
    std::unique_ptr<Operation>& operation = operations_.at(static_cast<std::size_t>(type));
    if (operation != nullptr)
        throw std::runtime_error("operation already exists");
    operation = std::make_unique<Operation>(this);
    return operation.get();
}

PathParameter* PathItem::createPathParameter(Text name) {
    return static_cast<PathParameter*>(
        &parameters_.add(std::make_unique<PathParameter>(this, std::move(name))));
}

QueryParameter* PathItem::createQueryParameter(Text name) {
    return static_cast<QueryParameter*>(
        &parameters_.add(std::make_unique<QueryParameter>(this, std::move(name))));
}

HeaderParameter* PathItem::createHeaderParameter(Text name) {
    return static_cast<HeaderParameter*>(
        &parameters_.add(std::make_unique<HeaderParameter>(this, std::move(name))));
}

CookieParameter* PathItem::createCookieParameter(Text name) {
    return static_cast<CookieParameter*>(
        &parameters_.add(std::make_unique<CookieParameter>(this, std::move(name))));
}

Reference* PathItem::addParameterReference(Node& target) {
    return static_cast<Reference*>(&parameters_.add(target.createReference(this)));
}

Server* PathItem::createServer(Text url) {
    return servers_.emplace_back(std::make_unique<Server>(this, std::move(url))).get();
}

} // namespace specloom::openapi
