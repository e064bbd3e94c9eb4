#include "openapi/server.h"

#include "foundation/message.h"
#include "foundation/text_tables.h"
#include "openapi/url_template.h"

#include <algorithm> // std::sort
#include <vector>    // std::vector

namespace specloom::openapi {

Server::Server(Node* parent, Text url) : Node(parent, NodeType::Server), url_(std::move(url)) {
    std::vector<std::string_view> names = templateNames(url_.view());
    TextViewSet taken;
    for (const std::string_view name : names) {
        if (name.empty())
            throw std::runtime_error("Empty variable name");
        if (!taken.insert(name).second)
            throw std::runtime_error(formatMessage("Duplicate server variable name: {}", name));
    }
    std::sort(names.begin(), names.end()); // as they are kept
    for (const std::string_view name : names)
        variables_.add(name, std::make_unique<ServerVariable>(this));
}

const ServerVariable* Server::variable(std::string_view name) const {
    return resolveTo<ServerVariable>(variables_.find(name));
}

ServerVariable* Server::variable(std::string_view name) {
    return const_cast<ServerVariable*>(static_cast<const Server*>(this)->variable(name));
}

} // namespace specloom::openapi
