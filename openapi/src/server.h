#pragma once

#include "openapi/server_variable.h"

namespace specloom::openapi {

/// Server Object (OpenAPI 3.1.0, section 4.8.5). The URL decides which variables there are.
class Server final : public Node {
  public:
    /// Makes a variable for each pair of braces in the URL. Throws std::runtime_error with "Empty variable
    /// name" for an empty pair, and with "Duplicate server variable name: " and the name.
    Server(Node* parent, Text url);

    [[nodiscard]] std::string_view url() const { return url_.view(); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    /// All of them are ServerVariable.
    [[nodiscard]] const NodeMap& variables() const { return variables_; }
    /// Null when the URL does not name it.
    [[nodiscard]] const ServerVariable* variable(std::string_view name) const;
    [[nodiscard]] ServerVariable* variable(std::string_view name);

  private:
    Text url_;
    Text description_;
    NodeMap variables_;
};

} // namespace specloom::openapi
