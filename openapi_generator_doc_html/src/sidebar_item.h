#pragma once

#include "jv/jv.h"

#include <cstdint>     // std::uint8_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <variant>     // std::variant
#include <vector>      // std::vector

// What a configuration says about the sidebar of a site.
namespace specloom::openapi_generator::doc_html {

/// An item that every sidebar has once.
enum class PredefinedItem : std::uint8_t { Overview, Operations, Resources };

/// "overview", "operations" or "resources".
[[nodiscard]] std::string_view predefinedItemName(PredefinedItem item);

/// A link.
struct CustomItem {
    std::string text;
    std::string href;
    [[nodiscard]] bool operator==(const CustomItem&) const = default;
};

struct CustomItemGroup {
    std::string text;
    std::vector<CustomItem> items;
    [[nodiscard]] bool operator==(const CustomItemGroup&) const = default;
};

using SidebarItem = std::variant<PredefinedItem, CustomItem, CustomItemGroup>;

/// The predefined items in their order.
[[nodiscard]] std::vector<SidebarItem> defaultSidebarItems();

/// Of an array. Throws ConfigError
///   "Unrecognized predefined sidebar item" for a string that names none of them,
///   "Invalid sidebar item" for an element that is neither a string nor an object,
///   "Custom navigation item must be an object" for one in a group that is none,
///   "Missing predefined sidebar item: " and the name of the first that is not in the array;
/// and std::runtime_error "Duplicate predefined sidebar item: " and the name.
[[nodiscard]] std::vector<SidebarItem> readSidebarItems(const jv::JV& items);

} // namespace specloom::openapi_generator::doc_html
