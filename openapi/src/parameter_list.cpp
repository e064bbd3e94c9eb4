#include "openapi/parameter_list.h"

#include "foundation/hash.h"
#include "foundation/keyed_hash.h"

#include <algorithm> // std::find
#include <utility>   // std::move

namespace specloom::openapi {

namespace {

constexpr std::size_t searchedKeys = 16;

[[nodiscard]] ParameterKey keyOf(const Parameter& parameter) {
    return {parameter.location(), parameter.name()};
}

} // namespace

std::size_t ParameterKeyHash::operator()(const ParameterKey& key) const noexcept {
    return static_cast<std::size_t>(combine(keyedHash(key.name), static_cast<std::uint64_t>(key.location)));
}

bool ParameterKeys::contains(const ParameterKey& key) const {
    return table_ == nullptr ? std::find(keys_.begin(), keys_.end(), key) != keys_.end()
                             : table_->contains(key);
}

bool ParameterKeys::insert(const ParameterKey& key) {
    if (contains(key))
        return false;
    keys_.push_back(key);
    if (table_ != nullptr)
        table_->insert(key);
    else if (keys_.size() == searchedKeys)
        table_ =
            std::make_unique<std::unordered_set<ParameterKey, ParameterKeyHash>>(keys_.begin(), keys_.end());
    return true;
}

const Parameter* ParameterList::find(std::string_view name, ParameterLocation location) const {
    if (!keys_.contains({location, name}))
        return nullptr;
    for (const NodePointer& node : nodes_) {
        const auto* parameter = resolveTo<Parameter>(node.get());
        if (keyOf(*parameter) == ParameterKey{location, name})
            return parameter;
    }
    return nullptr;
}

const Parameter* ParameterList::at(std::size_t index) const {
    return resolveTo<Parameter>(nodes_.at(index).get());
}

Node& ParameterList::add(NodePointer node) {
    keys_.insert(keyOf(*resolveTo<Parameter>(node.get())));
    return *nodes_.emplace_back(std::move(node));
}

void ParameterList::rename(std::size_t index, Text name) {
    static_cast<Parameter&>(*nodes_.at(index)).name_ = std::move(name);
    keys_ = ParameterKeys(); // they refer to the names
    for (const NodePointer& node : nodes_)
        keys_.insert(keyOf(*resolveTo<Parameter>(node.get())));
}

} // namespace specloom::openapi
