#pragma once

#include "openapi/named_nodes.h"
#include "openapi/path_item.h"

namespace specloom::openapi {

/// Paths Object (OpenAPI 3.1.0, section 4.8.8): path items, or references to one, by URL template, in
/// byte-wise order.
class Paths final : public Node {
  public:
    explicit Paths(Node* parent) : Node(parent, NodeType::Paths) {}

    [[nodiscard]] const NamedNodes& items() const { return items_; }
    [[nodiscard]] NamedNodes::const_iterator begin() const { return items_.begin(); }
    [[nodiscard]] NamedNodes::const_iterator end() const { return items_.end(); }
    [[nodiscard]] std::size_t size() const { return items_.size(); }
    void reserve(std::size_t count) { items_.reserve(count); }

    /// The resolved path item, or null.
    [[nodiscard]] const PathItem* find(std::string_view url) const {
        return resolveTo<PathItem>(items_.find(url));
    }
    [[nodiscard]] PathItem* find(std::string_view url) { return resolveTo<PathItem>(items_.find(url)); }
    /// The URL of a stored node; empty for any other, also for the target of a stored reference.
    [[nodiscard]] std::optional<std::string_view> urlOf(const Node* node) const {
        return items_.nameOf(node);
    }

    /// Both throw std::runtime_error "Path already exists".
    PathItem* createPathItem(Text url);
    Reference* addPathItemReference(Text url, Node& target);

    /// Does nothing when both are equal. Throws std::runtime_error with "Path does not exist {}",
    /// "New path URL cannot be empty" and "Path already exists {}", tested in this order. References to the
    /// path item stay valid.
    void rename(std::string_view oldUrl, std::string_view newUrl);
    /// Gives every path item a new URL, all at once. One keeps its URL when the new one is empty, is a URL
    /// that any had before, or went to one before it, so that none is lost. References to them stay valid.
    void renameAll(const NamedNodes::Renaming& renaming) { items_.renameAll(renaming); }

  private:
    NamedNodes items_;
};

} // namespace specloom::openapi
