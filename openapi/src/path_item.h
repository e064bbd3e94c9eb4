#pragma once

#include "openapi/operation.h"
#include "openapi/operation_type.h"
#include "openapi/parameter_list.h"
#include "openapi/server.h"

#include <array>  // std::array
#include <vector> // std::vector

namespace specloom::openapi {

/// Path Item Object (OpenAPI 3.1.0, section 4.8.9).
class PathItem final : public Node {
  public:
    explicit PathItem(Node* parent) : Node(parent, NodeType::PathItem) {}

    [[nodiscard]] std::optional<std::string_view> summary() const { return summary_.get(); }
    void setSummary(Text summary) { summary_ = std::move(summary); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

    /// The operations by OperationType; null where there is none.
    [[nodiscard]] const std::array<std::unique_ptr<Operation>, operationKeys.size()>& operations() const {
        return operations_;
    }
    /// Null when there is none.
    [[nodiscard]] const Operation* operation(OperationType type) const {
        return operations_.at(static_cast<std::size_t>(type)).get();
    }
    [[nodiscard]] Operation* operation(OperationType type) {
        return operations_.at(static_cast<std::size_t>(type)).get();
    }
    /// Throws std::runtime_error "operation already exists".
    Operation* createOperation(OperationType type);

    /// Unlike an operation, a path item takes a parameter twice.
    [[nodiscard]] const ParameterList& parameters() const { return parameters_; }
    PathParameter* createPathParameter(Text name);
    QueryParameter* createQueryParameter(Text name);
    HeaderParameter* createHeaderParameter(Text name);
    CookieParameter* createCookieParameter(Text name);
    Reference* addParameterReference(Node& target);
    /// ParameterList::rename().
    void renameParameter(std::size_t index, Text name) { parameters_.rename(index, std::move(name)); }

    [[nodiscard]] const std::vector<std::unique_ptr<Server>>& servers() const { return servers_; }
    Server* createServer(Text url);

  private:
    Text summary_;
    Text description_;
    std::array<std::unique_ptr<Operation>, operationKeys.size()> operations_;
    std::vector<std::unique_ptr<Server>> servers_;
    ParameterList parameters_;
};

} // namespace specloom::openapi
