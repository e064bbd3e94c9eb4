#include "configuration/section.h"

#include <algorithm> // std::find
#include <limits>    // std::numeric_limits
#include <memory>    // std::unique_ptr

namespace specloom::configuration {
namespace {

/// The member of an object; null for other kinds of value too.
const jv::JV* memberOf(const jv::JV* value, std::string_view name) {
    return value != nullptr && value->isObject() ? value->get(name) : nullptr;
}

} // namespace

std::string_view textOf(const jv::JV& value, const Message& otherwise) {
    if (!value.isString())
        throw ConfigError(otherwise, &value);
    return value.text();
}

std::vector<std::string_view> textsOf(const jv::JV& value, const Message& otherwise) {
    if (!value.isArray())
        return {textOf(value, otherwise)};
    std::vector<std::string_view> texts;
    for (const jv::JV* element : value.elements())
        texts.push_back(textOf(*element, otherwise));
    return texts;
}

ConfigError unexpectedMember(const jv::JV& value) {
    return {"Unexpected properties", &value};
}

Section::Section(const jv::JV* object) {
    static const std::unique_ptr<jv::JV> withoutMembers = jv::JV::newObject();
    object_ = object == nullptr ? withoutMembers.get() : object;
}

std::optional<bool> Section::boolean(std::string_view name) const {
    const jv::JV* value = object_->getBoolean(name);
    return value == nullptr ? std::nullopt : std::optional(value->boolean());
}

std::optional<std::int32_t> Section::integer(std::string_view name, std::int32_t most,
                                             const Message& tooLarge) const {
    const jv::JV* value = object_->getInteger(name);
    if (value == nullptr)
        return std::nullopt;
    const number::Number given = value->number();
    if (given.compare(most) > 0)
        throw ConfigError(tooLarge, value);
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    return given.compare(least) < 0 ? least
                                    : static_cast<std::int32_t>(given.toDouble()); // exact, also as 2.0
}

std::optional<std::string_view> Section::text(std::string_view name) const {
    const jv::JV* value = object_->getString(name);
    return value == nullptr ? std::nullopt : std::optional(value->text());
}

std::optional<std::string_view> Section::textIfString(std::string_view name) const {
    const jv::JV* value = get(name);
    return value == nullptr || !value->isString() ? std::nullopt : std::optional(value->text());
}

std::optional<std::variant<bool, std::string_view>> Section::booleanOrText(std::string_view name,
                                                                           const Message& otherwise) const {
    const jv::JV* value = get(name);
    if (value == nullptr)
        return std::nullopt;
    if (value->isBoolean())
        return value->boolean();
    return textOf(*value, otherwise);
}

std::span<const jv::JV* const> Section::elements(std::string_view name) const {
    const jv::JV* value = object_->getArray(name);
    return value == nullptr ? std::span<const jv::JV* const>() : value->elements();
}

Section Section::section(std::string_view name) const {
    return Section(object_->getObject(name));
}

void Section::requireKnown(const std::function<bool(std::string_view)>& isKnown) const {
    for (const auto& [name, value] : members())
        if (!isKnown(name))
            throw unexpectedMember(*value);
}

void Section::requireKnown(std::initializer_list<std::string_view> names) const {
    requireKnown(
        [&](std::string_view name) { return std::find(names.begin(), names.end(), name) != names.end(); });
}

Section pluginSection(const jv::JV& root, std::string_view plugin) {
    const jv::JV* section = memberOf(memberOf(memberOf(&root, "commands"), "generate"), plugin);
    if (section != nullptr && !section->isObject())
        throw ConfigError(formatMessage("An object is expected for '{}'", plugin), section);
    return Section(section);
}

} // namespace specloom::configuration
