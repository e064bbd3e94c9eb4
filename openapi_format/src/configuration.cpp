#include "openapi_format/configuration.h"

#include "configuration/section.h"
#include "foundation/message.h"
#include "openapi_format/embedded_configuration.h"
#include "openapi_format/messages.h"
#include "openapi_format/structure.h"

#include <utility> // std::move
#include <vector>  // std::vector

namespace specloom::openapi_format {

namespace {

using configuration::Choices;
using configuration::ConfigError;
using configuration::Section;
using configuration::textsOf;

constexpr Choices<std::string_view, 2> bases{
    {{"original", "original.yaml"}, {"recommended", "recommended.yaml"}}};
constexpr Choices<jv::DocumentFormat, 2> formats{
    {{"json", jv::DocumentFormat::Json}, {"yaml", jv::DocumentFormat::Yaml}}};
constexpr Choices<PropertyOrder (*)(), 2> shortcuts{
    {{"original", PropertyOrder::original}, {"sorted", PropertyOrder::sorted}}};

[[nodiscard]] PropertyOrder readOrder(const jv::JV& value) {
    if (!value.isArray())
        return choiceOf(value, shortcuts, message::orderNeitherStringNorArray,
                        message::unsupportedShortcut)();
    const std::vector<std::string_view> keys = textsOf(value, message::elementNotString);
    return PropertyOrder::fixed({keys.begin(), keys.end()});
}

} // namespace

Configuration Configuration::recommended() {
    return embedded("recommended.yaml");
}

Configuration Configuration::load(const jv::JV* section) {
    if (section == nullptr)
        return recommended();
    Configuration configuration;
    if (const jv::JV* base = section->get("extends"); base != nullptr)
        configuration = embedded(choiceOf(*base, bases, message::extendsNotString, message::unknownExtends));
    configuration.overlay(*section);
    return configuration;
}

Configuration Configuration::embedded(std::string_view fileName) {
    const auto document = jv::parseDocument(embeddedConfiguration(fileName),
                                            {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
    return load(document->root());
}

void Configuration::overlay(const jv::JV& section) {
    const Section openapi = Section(section).section("openapi");
    if (const auto format = openapi.choice("format", formats, message::unknownFormat); format)
        format_ = *format;
    indent_ = openapi.integer("indent", largestIndent, formatMessage(message::indentTooLarge, largestIndent))
                  .value_or(indent_);
    readOrders(openapi.section("property_order"));
}

void Configuration::readOrders(const Section& orders) {
    if (const jv::JV* value = orders.get("default"); value != nullptr)
        defaultOrder_ =
            choiceOf(*value, shortcuts, message::defaultOrderNotString, message::unsupportedShortcut)();
    for (const auto& [kind, value] : orders.members()) {
        if (kind == "default")
            continue;
        PropertyOrder order = readOrder(*value);
        if (findObjectKind(kind) == nullptr)
            throw ConfigError(formatMessage(message::unknownKind, kind), value);
        orders_.insert_or_assign(std::string(kind), std::move(order));
    }
}

const PropertyOrder& Configuration::orderOf(std::string_view kind) const {
    static const PropertyOrder unset;
    const auto order = orders_.find(kind);
    return order == orders_.end() ? unset : order->second;
}

} // namespace specloom::openapi_format
