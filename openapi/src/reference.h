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
    void setTarget(Node* target);

    [[nodiscard]] std::optional<std::string_view> summary() const {
        return texts_ == nullptr ? std::nullopt : texts_->summary.get();
    }
    void setSummary(Text summary) { texts().summary = std::move(summary); }
    [[nodiscard]] std::optional<std::string_view> description() const {
        return texts_ == nullptr ? std::nullopt : texts_->description.get();
    }
    void setDescription(Text description) { texts().description = std::move(description); }

    /// The next reference to the same target, or null.
    [[nodiscard]] const Reference* nextReference() const noexcept { return next_; }

  private:
    struct Texts {
        Text summary;
        Text description;
    };

    [[nodiscard]] Texts& texts() {
        if (texts_ == nullptr)
            texts_ = std::make_unique<Texts>();
        return *texts_;
    }

    Node* target_ = nullptr;
    Reference* next_ = nullptr; ///< of the references to target_
    Reference* previous_ = nullptr;
    std::unique_ptr<Texts> texts_; ///< few references have any
};

} // namespace specloom::openapi
