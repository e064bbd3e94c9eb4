#include "openapi/paths.h"

#include "foundation/message.h"
#include "openapi/reference.h"

namespace specloom::openapi {

PathItem* Paths::createPathItem(Text url) {
    if (items_.find(url.view()) != nullptr)
        throw std::runtime_error("Path already exists");
    return static_cast<PathItem*>(&items_.add(std::move(url), std::make_unique<PathItem>(this)));
}

Reference* Paths::addPathItemReference(Text url, Node& target) {
    if (items_.find(url.view()) != nullptr)
        throw std::runtime_error("Path already exists");
    return static_cast<Reference*>(&items_.add(std::move(url), target.createReference(this)));
}

void Paths::rename(std::string_view oldUrl, std::string_view newUrl) {
    if (oldUrl == newUrl)
        return;
    if (items_.find(oldUrl) == nullptr)
        throw std::runtime_error(formatMessage("Path does not exist {}", oldUrl));
    if (newUrl.empty())
        throw std::runtime_error("New path URL cannot be empty");
    if (items_.find(newUrl) != nullptr)
        throw std::runtime_error(formatMessage("Path already exists {}", newUrl));
    items_.rename(oldUrl, newUrl);
}

} // namespace specloom::openapi
