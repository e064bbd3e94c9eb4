#include "openapi/server.h"

#include "foundation/message.h"
#include "openapi/url_template.h"

namespace specloom::openapi {

Server::Server(Node* parent, Text url) : Node(parent, NodeType::Server), url_(std::move(url)) {
    for (const std::string_view name : templateNames(url_.view())) {
        if (name.empty())
            throw std::runtime_error("Empty variable name");
        if (variables_.find(name) != nullptr)
            throw std::runtime_error(formatMessage("Duplicate server variable name: {}", name));
        variables_.add(name, std::make_unique<ServerVariable>(this));
    }
}

const ServerVariable* Server::variable(std::string_view name) const {
    return resolveTo<ServerVariable>(variables_.find(name));
}

ServerVariable* Server::variable(std::string_view name) {
    return const_cast<ServerVariable*>(static_cast<const Server*>(this)->variable(name));
}

} // namespace specloom::openapi
