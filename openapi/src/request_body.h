#pragma once

#include "openapi/media_type.h"

namespace specloom::openapi {

/// Request Body Object (OpenAPI 3.1.0, section 4.8.13).
class RequestBody final : public Node {
  public:
    explicit RequestBody(Node* parent) : Node(parent, NodeType::RequestBody) {}

    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }
    /// By media type; all of them are MediaType.
    [[nodiscard]] const NodeMap& content() const { return content_; }
    [[nodiscard]] const MediaType* mediaType(std::string_view name) const {
        return resolveTo<MediaType>(content_.find(name));
    }
    /// Throws std::runtime_error "Media type already exists".
    MediaType* createMediaType(Text name);
    [[nodiscard]] std::optional<bool> required() const { return required_; }
    void setRequired(std::optional<bool> required) { required_ = required; }

  private:
    Text description_;
    NodeMap content_;
    std::optional<bool> required_;
};

} // namespace specloom::openapi
