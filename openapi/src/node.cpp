#include "openapi/node.h"

#include "openapi/reference.h"

#include <utility> // std::move

namespace specloom::openapi {

Node::~Node() {
    while (firstReference_ != nullptr)
        firstReference_->setTarget(nullptr);
}

std::unique_ptr<Reference> Node::createReference(Node* parent) {
    return std::make_unique<Reference>(parent, this);
}

void Node::onChange(const NodeChange&) {}

void Node::notifyChange(const NodeChange& change) {
    for (Node* node = this; node != nullptr; node = node->parent_)
        node->onChange(change);
}

const ExtensionMap& Node::extensions() const noexcept {
    static const ExtensionMap none;
    return extensions_ == nullptr ? none : *extensions_;
}

const jv::JV* Node::findExtension(std::string_view key) const {
    const Value* value = extensions().find(key);
    return value == nullptr ? nullptr : value->get();
}

void Node::setExtension(Text key, Value value) {
    if (extensions_ == nullptr)
        extensions_ = std::make_unique<ExtensionMap>();
    if (extensions_->find(key.view()) != nullptr)
        (void)extensions_->extract(key.view());
    else
        extensions_->add(std::move(key), std::move(value));
}

void Node::replaceExtension(Text key, Value value) {
    if (extensions_ != nullptr && extensions_->find(key.view()) != nullptr)
        (void)extensions_->extract(key.view());
    setExtension(std::move(key), std::move(value));
}

} // namespace specloom::openapi
