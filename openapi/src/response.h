#pragma once

#include "openapi/header.h"
#include "openapi/link.h"
#include "openapi/media_type.h"

namespace specloom::openapi {

/// Response Object (OpenAPI 3.1.0, section 4.8.17).
class Response final : public Node {
  public:
    explicit Response(Node* parent) : Node(parent, NodeType::Response) {}

    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

    /// Headers or references to one, by name.
    [[nodiscard]] const NodeMap& headers() const { return headers_; }
    /// The resolved header of exactly that name, or null.
    [[nodiscard]] const Header* header(std::string_view name) const {
        return resolveTo<Header>(headers_.find(name));
    }
    /// Both throw std::runtime_error "Header already exists".
    Header* createHeader(Text name);
    Reference* addHeaderReference(Text name, Node& target);

    /// By media type; all of them are MediaType.
    [[nodiscard]] const NodeMap& content() const { return content_; }
    [[nodiscard]] const MediaType* mediaType(std::string_view name) const {
        return resolveTo<MediaType>(content_.find(name));
    }
    /// Throws std::runtime_error "Media type already exists".
    MediaType* createMediaType(Text name);

    /// Links or references to one, by name.
    [[nodiscard]] const NodeMap& links() const { return links_; }
    [[nodiscard]] const Link* link(std::string_view name) const { return resolveTo<Link>(links_.find(name)); }
    /// Both throw std::runtime_error "Link already exists".
    Link* createLink(Text name);
    Reference* addLinkReference(Text name, Node& target);

  private:
    Text description_;
    NodeMap headers_;
    NodeMap content_;
    NodeMap links_;
};

} // namespace specloom::openapi
