#pragma once

#include "foundation/keyed_hash.h"

#include <functional>    // std::equal_to
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <unordered_set> // std::unordered_set

// Tables keyed by texts of documents. Their order differs from run to run: nothing is written in it.
namespace specloom {

using TextSet = std::unordered_set<std::string, KeyedHash, std::equal_to<>>;
/// Of texts that lie elsewhere and stay there.
using TextViewSet = std::unordered_set<std::string_view, KeyedHash>;

template <typename T>
using TextMap = std::unordered_map<std::string, T, KeyedHash, std::equal_to<>>;
template <typename T>
using TextViewMap = std::unordered_map<std::string_view, T, KeyedHash>;

} // namespace specloom
