#pragma once

#include "openapi/server.h"

namespace specloom::openapi {

/// Link Object (OpenAPI 3.1.0, section 4.8.20).
class Link final : public Node {
  public:
    explicit Link(Node* parent) : Node(parent, NodeType::Link) {}

    [[nodiscard]] std::optional<std::string_view> operationRef() const { return operationRef_.get(); }
    void setOperationRef(Text operationRef) { operationRef_ = std::move(operationRef); }
    [[nodiscard]] std::optional<std::string_view> operationId() const { return operationId_.get(); }
    void setOperationId(Text operationId) { operationId_ = std::move(operationId); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    /// Values or runtime expressions by parameter name.
    [[nodiscard]] const NameMap<Value>& parameters() const { return parameters_; }
    /// Throws std::runtime_error "Link parameter already exists".
    void addParameter(Text name, Value value);
    /// Null when there is none.
    [[nodiscard]] const jv::JV* requestBody() const { return requestBody_.get(); }
    void setRequestBody(Value value) { requestBody_ = std::move(value); }
    /// Null when there is none.
    [[nodiscard]] const Server* server() const { return server_.get(); }
    /// Replaces the one that is there.
    Server* createServer(Text url);

  private:
    Text operationRef_;
    Text operationId_;
    Text description_;
    NameMap<Value> parameters_;
    Value requestBody_;
    std::unique_ptr<Server> server_;
};

} // namespace specloom::openapi
