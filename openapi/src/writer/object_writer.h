#pragma once

#include "openapi/name_map.h"
#include "openapi/node.h"
#include "openapi/writer/keyed_object.h"
#include "openapi/writer/write_context.h"

#include <utility> // std::move

namespace specloom::openapi {

/// The value of a node: an object, a `$ref` for a reference, or a boolean for a schema if these are wanted.
/// Null for a reference whose target is no component, which has no text.
[[nodiscard]] std::unique_ptr<jv::JV> writeNode(const WriteContext& context, const Node& node);

/// Writes the object of one node. Each of the calls that take a key adds that member unless there is nothing
/// to write: no value, or an empty list or map.
class ObjectWriter {
  public:
    ObjectWriter(const WriteContext& context, const Node& node) : context_(context), node_(node) {}
    ObjectWriter(const ObjectWriter&) = delete;
    ObjectWriter& operator=(const ObjectWriter&) = delete;

    [[nodiscard]] const WriteContext& context() const noexcept { return context_; }

    void text(std::string_view key, std::optional<std::string_view> text);
    void flag(std::string_view key, std::optional<bool> value);
    void number(std::string_view key, const std::optional<number::Number>& value);
    void count(std::string_view key, std::optional<std::uint64_t> value);
    /// A deep copy.
    void value(std::string_view key, const jv::JV* value);
    void node(std::string_view key, const Node* node) { add(key, nodeValue(node)); }

    // Maps, in the order of their names unless the key orders say otherwise.

    /// A map of nodes.
    template <typename Map>
    void map(std::string_view key, const Map& entries) {
        fill(key, entries, [this](const auto& entry) { return nodeValue(&*entry.value); });
    }
    void map(std::string_view key, const NameMap<Text>& entries);
    void map(std::string_view key, const NameMap<Value>& entries);
    /// A map whose values `make` makes of its entries; one of null is left out. `orderKey` is that of the key
    /// order, where it is not `key`.
    template <typename Map, typename Make>
    void fill(std::string_view key, const Map& entries, Make make, std::string_view orderKey = {}) {
        KeyedObject object;
        for (const auto& entry : entries) {
            if (auto value = make(entry); value != nullptr)
                object.add(entry.name(), std::move(value));
        }
        if (!object.empty())
            add(key, object.finish(context_.output, keyOrderOf(orderKey.empty() ? key : orderKey)));
    }
    /// The entries of a map of nodes as members of this object.
    template <typename Map>
    void entries(const Map& entries) {
        for (const auto& entry : entries)
            add(entry.name(), nodeValue(&*entry.value));
    }

    // Arrays.

    /// Of nodes.
    template <typename List>
    void list(std::string_view key, const List& nodes) {
        array(key, nodes, [this](const auto& element) { return nodeValue(&*element); });
    }
    void list(std::string_view key, const std::vector<Text>& texts);
    void list(std::string_view key, const std::vector<Value>& values);
    /// Of what `make` makes of the elements; null is left out.
    template <typename List, typename Make>
    void array(std::string_view key, const List& elements, Make make) {
        std::unique_ptr<jv::JV> array = jv::JV::newArray();
        for (const auto& element : elements) {
            if (auto value = make(element); value != nullptr)
                array->append(std::move(value));
        }
        if (array->size() != 0)
            add(key, std::move(array));
    }

    /// Adds a member; null is left out.
    void add(std::string_view key, std::unique_ptr<jv::JV> value);

    /// Whether an empty member that OpenAPI demands is to be written: unless the node was read from a
    /// document that does without it.
    [[nodiscard]] bool keepsEmpty(std::string_view key) const;
    /// The wanted order of what stands in one member; mostly empty.
    [[nodiscard]] std::vector<std::string_view> keyOrderOf(std::string_view key) const;
    [[nodiscard]] std::unique_ptr<jv::JV> copyOf(const jv::JV& value) const;

    /// The object, with the extensions of the node and in its key order. The writer is used up.
    [[nodiscard]] std::unique_ptr<jv::JV> finish();

  private:
    [[nodiscard]] std::unique_ptr<jv::JV> nodeValue(const Node* node) const {
        return node == nullptr ? nullptr : writeNode(context_, *node);
    }
    [[nodiscard]] const jv::JV* sourceOf(std::string_view key) const;

    const WriteContext& context_;
    const Node& node_;
    KeyedObject object_;
};

} // namespace specloom::openapi
