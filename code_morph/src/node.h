#pragma once

#include <string> // std::string

namespace specloom::code_morph::base {

/// Root of the models of generated sources: a project, its files, and what stands in them.
class Node {
  public:
    /// `parent` is what owns the node; null for a project.
    explicit Node(Node* parent = nullptr) noexcept : parent_(parent) {}
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node() = default;

    [[nodiscard]] Node* parent() const noexcept { return parent_; }

    /// Appends the node's source text to `out`. What has no text of its own does nothing.
    virtual void write(std::string& out) const;

  private:
    Node* parent_;
};

} // namespace specloom::code_morph::base
