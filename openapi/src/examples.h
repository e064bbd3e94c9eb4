#pragma once

#include "openapi/example.h"

#include <cstdint> // std::uint8_t
#include <utility> // std::move

namespace specloom::openapi {

/// The examples of a parameter, header or media type: none, one value (`example`), or a map of Example
/// Objects and references to them (`examples`).
class Examples {
  public:
    enum class Mode : std::uint8_t { None, Single, Map };

    [[nodiscard]] Mode mode() const { return mode_; }
    /// Null unless the mode is Single.
    [[nodiscard]] const jv::JV* single() const { return single_.get(); }
    /// Empty unless the mode is Map.
    [[nodiscard]] const NodeMap& map() const { return map_; }

    /// The two forms exclude each other: these leave Single, dropping the map, and the others Map, dropping
    /// the value.
    void setSingle(Value value);
    /// Both throw std::runtime_error "Example already exists". The owner is the node that holds the examples.
    Example* createExample(Node* owner, Text name);
    Reference* addExampleReference(Node* owner, Text name, Node& target);

  private:
    NodePointer& add(Text name, NodePointer node);

    Mode mode_ = Mode::None;
    Value single_;
    NodeMap map_;
};

} // namespace specloom::openapi
