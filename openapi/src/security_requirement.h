#pragma once

#include "foundation/text_tables.h"
#include "openapi/node.h"

#include <cstddef> // std::size_t
#include <utility> // std::move
#include <vector>  // std::vector

namespace specloom::openapi {

/// Security Requirement Object (OpenAPI 3.1.0, section 4.8.30). The schemes stand in source order.
class SecurityRequirement final : public Node {
  public:
    struct Scheme {
        Text key; ///< name of a component
        std::vector<Text> scopes;
        [[nodiscard]] std::string_view name() const noexcept { return key.view(); }
    };

    explicit SecurityRequirement(Node* parent) : Node(parent, NodeType::SecurityRequirement) {}

    [[nodiscard]] const std::vector<Scheme>& schemes() const { return schemes_; }
    /// Null when the requirement does not name it.
    [[nodiscard]] const Scheme* findScheme(std::string_view name) const;
    /// A scheme that is there already gets these scopes.
    void setScheme(Text name, std::vector<Text> scopes);

  private:
    std::vector<Scheme> schemes_;
    TextViewMap<std::size_t> places_; ///< in schemes_, by name; empty while they are few
};

} // namespace specloom::openapi
