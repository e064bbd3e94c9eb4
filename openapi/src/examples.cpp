#include "openapi/examples.h"

#include "openapi/reference.h"

namespace specloom::openapi {

void Examples::setSingle(Value value) {
    mode_ = Mode::Single;
    map_ = NodeMap();
    single_ = std::move(value);
}

NodePointer& Examples::add(Text name, NodePointer node) {
    if (map_.find(name.view()) != nullptr)
        throw std::runtime_error("Example already exists");
    mode_ = Mode::Map;
    single_ = Value();
    return map_.add(std::move(name), std::move(node));
}

Example* Examples::createExample(Node* owner, Text name) {
    return static_cast<Example*>(add(std::move(name), std::make_unique<Example>(owner)).get());
}

Reference* Examples::addExampleReference(Node* owner, Text name, Node& target) {
    return static_cast<Reference*>(add(std::move(name), target.createReference(owner)).get());
}

} // namespace specloom::openapi
