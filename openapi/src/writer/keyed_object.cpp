#include "openapi/writer/keyed_object.h"

#include <algorithm> // std::lower_bound, std::sort
#include <cstdint>   // std::uint32_t
#include <numeric>   // std::iota
#include <utility>   // std::move

namespace specloom::openapi {

std::vector<std::string_view> inKeyOrder(const std::vector<std::string_view>& keys,
                                         std::span<const std::string_view> first) {
    if (first.empty())
        return keys;
    std::vector<std::uint32_t> byName(keys.size());
    std::iota(byName.begin(), byName.end(), 0U);
    std::sort(byName.begin(), byName.end(),
              [&](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });

    std::vector<std::string_view> ordered;
    ordered.reserve(keys.size());
    std::vector<bool> placed(keys.size());
    for (const std::string_view key : first) {
        const auto found =
            std::lower_bound(byName.begin(), byName.end(), key,
                             [&](std::uint32_t index, std::string_view name) { return keys[index] < name; });
        if (found == byName.end() || keys[*found] != key || placed[*found])
            continue;
        placed[*found] = true;
        ordered.push_back(key);
    }
    for (std::size_t index = 0; index < keys.size(); ++index) {
        if (!placed[index])
            ordered.push_back(keys[index]);
    }
    return ordered;
}

void KeyedObject::add(std::string_view key, std::unique_ptr<jv::JV> value) {
    value_->set(key, std::move(value));
    keys_.push_back(key);
}

std::unique_ptr<jv::JV> KeyedObject::finish(jv::JVDocument& output, std::span<const std::string_view> first) {
    output.setKeys(value_.get(), inKeyOrder(keys_, first));
    return std::move(value_);
}

} // namespace specloom::openapi
