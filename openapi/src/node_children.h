#pragma once

#include "openapi/reference.h"

#include <utility> // std::move

namespace specloom::openapi {

/// The new child of class T that `owner` keeps in `map` under `name`. Throws std::runtime_error with `taken`
/// when the name is taken.
template <typename T>
T* createChild(NodeMap& map, Node* owner, Text name, const char* taken) {
    if (map.find(name.view()) != nullptr)
        throw std::runtime_error(taken);
    return static_cast<T*>(map.add(std::move(name), std::make_unique<T>(owner)).get());
}

/// The same for a reference to `target`.
inline Reference* addReference(NodeMap& map, Node* owner, Text name, Node& target, const char* taken) {
    if (map.find(name.view()) != nullptr)
        throw std::runtime_error(taken);
    return static_cast<Reference*>(map.add(std::move(name), target.createReference(owner)).get());
}

} // namespace specloom::openapi
