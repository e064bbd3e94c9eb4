#include "openapi/named_nodes.h"

#include "foundation/text_tables.h"

#include <algorithm> // std::sort
#include <string>    // std::string
#include <utility>   // std::move

namespace specloom::openapi {

void NamedNodes::reserve(std::size_t count) {
    items_.reserve(count);
    names_.reserve(count);
}

const Node* NamedNodes::find(std::string_view name) const noexcept {
    const NodePointer* node = items_.find(name);
    return node == nullptr ? nullptr : node->get();
}

Node* NamedNodes::find(std::string_view name) noexcept {
    return const_cast<Node*>(static_cast<const NamedNodes*>(this)->find(name));
}

std::optional<std::string_view> NamedNodes::nameOf(const Node* node) const {
    const auto found = names_.find(node);
    return found == names_.end() ? std::nullopt : std::optional(found->second);
}

Node& NamedNodes::add(Text name, NodePointer node) {
    names_.emplace(node.get(), name.view());
    return *items_.add(std::move(name), std::move(node));
}

void NamedNodes::rename(std::string_view oldName, Text newName) {
    NodePointer node = items_.extract(oldName);
    names_.erase(node.get());
    add(std::move(newName), std::move(node));
}

void NamedNodes::renameAll(const Renaming& renaming) {
    std::vector<std::string> newNames; // empty for an entry that keeps its name
    TextSet taken;
    for (const auto& entry : items_) {
        std::string name = renaming(entry.name(), *entry.value);
        const bool free = find(name) == nullptr && taken.insert(name).second;
        newNames.push_back(free ? std::move(name) : std::string());
    }
    NodeMap::Entries entries = items_.extractAll();
    for (std::size_t index = 0; index < entries.size(); ++index)
        if (!newNames[index].empty())
            entries[index].key = Text(newNames[index]);
    std::sort(entries.begin(), entries.end(),
              [](const auto& a, const auto& b) { return a.name() < b.name(); });
    names_.clear();
    for (NodeMap::Entry& entry : entries)
        add(std::move(entry.key), std::move(entry.value));
}

} // namespace specloom::openapi
