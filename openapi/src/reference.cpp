#include "openapi/reference.h"

namespace specloom::openapi {

Reference::Reference(Node* parent, Node* target) : Node(parent, NodeType::Reference) {
    setTarget(target);
}

Reference::~Reference() {
    setTarget(nullptr);
}

std::unique_ptr<Reference> Reference::createReference(Node* parent) {
    if (target_ == nullptr)
        throw NodeError("Reference has no target", this);
    return target_->createReference(parent);
}

void Reference::setTarget(Node* target) {
    if (target == target_)
        return;
    if (target_ != nullptr) {
        (previous_ == nullptr ? target_->rare_->firstReference : previous_->next_) = next_;
        if (next_ != nullptr)
            next_->previous_ = previous_;
    }
    target_ = target;
    previous_ = nullptr;
    next_ = nullptr;
    if (target_ != nullptr) {
        next_ = target_->rare().firstReference;
        if (next_ != nullptr)
            next_->previous_ = this;
        target_->rare_->firstReference = this;
    }
}

} // namespace specloom::openapi
