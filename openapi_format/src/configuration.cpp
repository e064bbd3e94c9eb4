#include "openapi_format/configuration.h"

#include "foundation/message.h"
#include "jv/jv_error.h"
#include "openapi_format/embedded_configuration.h"
#include "openapi_format/messages.h"
#include "openapi_format/structure.h"

#include <utility> // std::move
#include <vector>  // std::vector

namespace specloom::openapi_format {

namespace {

[[nodiscard]] jv::JVError fault(const Message& message, const jv::JV& value) {
    return {message, &value};
}

/// A fault whose message quotes the text of the value.
[[nodiscard]] jv::JVError textFault(MessageFormat<std::string_view> message, const jv::JV& value) {
    return {formatMessage(message, value.text()), &value};
}

[[nodiscard]] jv::DocumentFormat readFormat(const jv::JV& value) {
    if (value.text() == "yaml")
        return jv::DocumentFormat::Yaml;
    if (value.text() == "json")
        return jv::DocumentFormat::Json;
    throw textFault(message::unknownFormat, value);
}

[[nodiscard]] PropertyOrder readShortcut(const jv::JV& value) {
    if (value.text() == "original")
        return PropertyOrder::original();
    if (value.text() == "sorted")
        return PropertyOrder::sorted();
    throw textFault(message::unsupportedShortcut, value);
}

[[nodiscard]] PropertyOrder readOrder(const jv::JV& value) {
    if (value.isString())
        return readShortcut(value);
    if (!value.isArray())
        throw fault(message::orderNeitherStringNorArray, value);
    std::vector<std::string> keys;
    for (const jv::JV* element : value.elements()) {
        if (!element->isString())
            throw fault(message::elementNotString, *element);
        keys.emplace_back(element->text());
    }
    return PropertyOrder::fixed(std::move(keys));
}

} // namespace

Configuration Configuration::recommended() {
    return carried("recommended.yaml");
}

Configuration Configuration::load(const jv::JV* section) {
    if (section == nullptr)
        return recommended();
    Configuration configuration;
    if (const jv::JV* base = section->get("extends"); base != nullptr) {
        if (!base->isString())
            throw fault(message::extendsNotString, *base);
        if (base->text() != "recommended" && base->text() != "original")
            throw textFault(message::unknownExtends, *base);
        configuration = carried(std::string(base->text()) + ".yaml");
    }
    configuration.overlay(*section);
    return configuration;
}

Configuration Configuration::carried(std::string_view fileName) {
    const auto document = jv::parseDocument(embeddedConfiguration(fileName),
                                            {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
    return load(document->root());
}

void Configuration::overlay(const jv::JV& section) {
    const jv::JV* openapi = section.getObject("openapi");
    if (openapi == nullptr)
        return;
    if (const jv::JV* format = openapi->getString("format"); format != nullptr)
        format_ = readFormat(*format);
    readIndent(*openapi);
    if (const jv::JV* orders = openapi->getObject("property_order"); orders != nullptr)
        readOrders(*orders);
}

void Configuration::readIndent(const jv::JV& openapi) {
    const jv::JV* value = openapi.getInteger("indent");
    if (value == nullptr)
        return;
    const number::Number blanks = value->number();
    if (blanks.compare(0) < 0 || blanks.compare(largestIndent) > 0)
        throw jv::JVError(formatMessage(message::indentOutOfRange, largestIndent), value);
    indent_ = static_cast<std::int32_t>(blanks.toDouble()); // exact: a small integer, perhaps written as 2.0
}

void Configuration::readOrders(const jv::JV& orders) {
    if (const jv::JV* value = orders.get("default"); value != nullptr) {
        if (!value->isString())
            throw fault(message::defaultOrderNotString, *value);
        defaultOrder_ = readShortcut(*value);
    }
    for (const auto& [kind, value] : orders.members()) {
        if (kind == "default")
            continue;
        PropertyOrder order = readOrder(*value);
        if (findObjectKind(kind) == nullptr)
            throw jv::JVError(formatMessage(message::unknownKind, kind), value);
        orders_.insert_or_assign(std::string(kind), std::move(order));
    }
}

const PropertyOrder& Configuration::orderOf(std::string_view kind) const {
    static const PropertyOrder unset;
    const auto order = orders_.find(kind);
    return order == orders_.end() ? unset : order->second;
}

} // namespace specloom::openapi_format
