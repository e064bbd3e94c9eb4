#pragma once

#include "openapi/parameter.h"

#include <cstddef>       // std::size_t
#include <memory>        // std::unique_ptr
#include <unordered_set> // std::unordered_set
#include <vector>        // std::vector

namespace specloom::openapi {

/// What makes a parameter unique (OpenAPI 3.1.0, section 4.8.12): its location and name.
struct ParameterKey {
    ParameterLocation location;
    std::string_view name;
    friend bool operator==(const ParameterKey&, const ParameterKey&) = default;
};

struct ParameterKeyHash {
    [[nodiscard]] std::size_t operator()(const ParameterKey& key) const noexcept;
};

/// Keys met so far. Short lists, nearly all there are, are searched; long ones get a hash table.
class ParameterKeys {
  public:
    [[nodiscard]] bool contains(const ParameterKey& key) const;
    /// False when the key was there.
    bool insert(const ParameterKey& key);

  private:
    std::vector<ParameterKey> keys_;
    std::unique_ptr<std::unordered_set<ParameterKey, ParameterKeyHash>> table_; ///< null for a short list
};

/// The `parameters` of an operation or a path item, as written: parameters and references to one.
class ParameterList {
  public:
    [[nodiscard]] const std::vector<NodePointer>& nodes() const noexcept { return nodes_; }
    [[nodiscard]] std::size_t size() const noexcept { return nodes_.size(); }
    [[nodiscard]] bool empty() const noexcept { return nodes_.empty(); }

    /// The first one whose resolved parameter has exactly that name and location, or null.
    [[nodiscard]] const Parameter* find(std::string_view name, ParameterLocation location) const;
    /// The resolved parameter. Throws std::out_of_range past the end.
    [[nodiscard]] const Parameter* at(std::size_t index) const;

    Node& add(NodePointer node);
    /// Gives the parameter in that place, which is no reference, another name, which no other one of its
    /// location has. Throws std::out_of_range past the end.
    void rename(std::size_t index, Text name);

  private:
    std::vector<NodePointer> nodes_;
    ParameterKeys keys_;
};

} // namespace specloom::openapi
