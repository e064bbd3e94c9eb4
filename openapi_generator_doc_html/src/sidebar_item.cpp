#include "openapi_generator_doc_html/sidebar_item.h"

#include "configuration/section.h"
#include "foundation/message.h"
#include "foundation/unreachable.h"
#include "openapi_generator/config_error.h"

#include <algorithm> // std::find
#include <array>     // std::to_array
#include <stdexcept> // std::runtime_error

namespace specloom::openapi_generator::doc_html {
namespace {

using configuration::Section;

constexpr auto predefinedItems =
    std::to_array({PredefinedItem::Overview, PredefinedItem::Operations, PredefinedItem::Resources});

bool isAmong(const std::vector<SidebarItem>& items, PredefinedItem item) {
    return std::find(items.begin(), items.end(), SidebarItem(item)) != items.end();
}

PredefinedItem readPredefinedItem(const jv::JV& value) {
    for (const PredefinedItem item : predefinedItems)
        if (predefinedItemName(item) == value.text())
            return item;
    throw ConfigError("Unrecognized predefined sidebar item", &value);
}

CustomItem readCustomItem(const Section& section) {
    return {.text = std::string(section.textIfString("text").value_or("")),
            .href = std::string(section.textIfString("href").value_or(""))};
}

SidebarItem readCustomItemOrGroup(const Section& section) {
    if (section.textIfString("type").value_or("") != "group")
        return readCustomItem(section);
    CustomItemGroup group = {.text = std::string(section.textIfString("text").value_or("")), .items = {}};
    for (const jv::JV* item : section.elements("items")) {
        if (!item->isObject())
            throw ConfigError("Custom navigation item must be an object", item);
        group.items.push_back(readCustomItem(Section(*item)));
    }
    return group;
}

} // namespace

std::string_view predefinedItemName(PredefinedItem item) {
    switch (item) {
    case PredefinedItem::Overview:
        return "overview";
    case PredefinedItem::Operations:
        return "operations";
    case PredefinedItem::Resources:
        return "resources";
    }
    SPECLOOM_UNREACHABLE("no predefined item of a sidebar");
}

std::vector<SidebarItem> defaultSidebarItems() {
    return {predefinedItems.begin(), predefinedItems.end()};
}

std::vector<SidebarItem> readSidebarItems(const jv::JV& items) {
    std::vector<SidebarItem> result;
    for (const jv::JV* value : items.elements()) {
        if (value->isString()) {
            const PredefinedItem item = readPredefinedItem(*value);
            if (isAmong(result, item))
                throw std::runtime_error(
                    formatMessage("Duplicate predefined sidebar item: {}", predefinedItemName(item)));
            result.emplace_back(item);
        } else if (value->isObject()) {
            result.push_back(readCustomItemOrGroup(Section(*value)));
        } else {
            throw ConfigError("Invalid sidebar item", value);
        }
    }
    for (const PredefinedItem item : predefinedItems)
        if (!isAmong(result, item))
            throw ConfigError(formatMessage("Missing predefined sidebar item: {}", predefinedItemName(item)),
                              &items);
    return result;
}

} // namespace specloom::openapi_generator::doc_html
