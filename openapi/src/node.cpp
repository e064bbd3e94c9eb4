#include "openapi/node.h"

#include "openapi/reference.h"

#include <utility> // std::move

namespace specloom::openapi {

Node::Node(Node* parent, NodeType type)
    : type_(type), parent_(parent), tree_(parent == nullptr ? new Tree{this} : parent->tree_) {
    index_ = tree_->created++;
}

Node::~Node() {
    while (firstReference() != nullptr)
        rare_->firstReference->setTarget(nullptr);
    if (parent_ == nullptr)
        delete tree_;
}

Node::Rare& Node::rare() {
    if (rare_ == nullptr)
        rare_ = std::make_unique<Rare>();
    return *rare_;
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
    return rare_ == nullptr ? none : rare_->extensions;
}

const jv::JV* Node::findExtension(std::string_view key) const {
    const Value* value = extensions().find(key);
    return value == nullptr ? nullptr : value->get();
}

void Node::setExtension(Text key, Value value) {
    ExtensionMap& extensions = rare().extensions;
    if (extensions.find(key.view()) != nullptr)
        (void)extensions.extract(key.view());
    else
        extensions.add(std::move(key), std::move(value));
}

void Node::replaceExtension(Text key, Value value) {
    if (Value* present = rare().extensions.find(key.view()); present != nullptr)
        *present = std::move(value);
    else
        rare_->extensions.add(std::move(key), std::move(value));
}

} // namespace specloom::openapi
