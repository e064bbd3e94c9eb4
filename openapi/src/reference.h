#pragma once

#include "openapi/node.h"

namespace specloom::openapi {

/// A `$ref` (OpenAPI 3.1.0, section 4.8.23). Its text is not kept: the writer makes it from the target.
class Reference final : public Node {
  public:
    Reference(Node* parent, Node* target);
    ~Reference() override;

    /// Throws NodeError "Reference has no target" when the target was destroyed.
    [[nodiscard]] std::unique_ptr<Reference> createReference(Node* parent) override;
    [[nodiscard]] const Node* resolve() const override { return target_; }
    [[nodiscard]] Node* resolve() override { return target_; }

    [[nodiscard]] const Node* target() const noexcept { return target_; }
    [[nodiscard]] Node* target() noexcept { return target_; }
    void setTarget(Node* target) noexcept;

    [[nodiscard]] std::optional<std::string_view> summary() const { return summary_.get(); }
    void setSummary(Text summary) { summary_ = std::move(summary); }
    [[nodiscard]] std::optional<std::string_view> description() const { return description_.get(); }
    void setDescription(Text description) { description_ = std::move(description); }

    /// The next reference to the same target, or null.
    [[nodiscard]] const Reference* nextReference() const noexcept { return next_; }

  private:
    Node* target_ = nullptr;
    Reference* next_ = nullptr; ///< of the references to target_
    Reference* previous_ = nullptr;
    Text summary_;
    Text description_;
};

} // namespace specloom::openapi
