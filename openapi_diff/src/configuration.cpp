#include "openapi_diff/configuration.h"

#include "configuration/section.h"
#include "jv/deser.h"
#include "openapi/shape.h"
#include "openapi_diff/embedded_configuration.h"

#include <algorithm> // std::any_of, std::max
#include <cstddef>   // std::size_t
#include <optional>  // std::optional
#include <span>      // std::span
#include <stdexcept> // std::runtime_error

namespace specloom::openapi_diff {
namespace {

using configuration::Choices;
using configuration::ConfigError;
using configuration::Section;
using configuration::unexpectedMember;

// ---- classifications

constexpr char expectedString[] = "Expected string";
constexpr char expectedEntry[] = "Expected string or object";

/// An action as an entry names it, with the two that stand in for it where a condition is known.
struct NamedAction {
    std::string_view name;
    Action plain;
    std::optional<Action> whenTrue{};
    std::optional<Action> whenFalse{};
};

constexpr std::array<NamedAction, 3> fieldActions{
    {{"add", Action::Add, Action::AddThen, Action::AddElse},
     {"remove", Action::Remove, Action::RemoveThen, Action::RemoveElse},
     {"modify", Action::Modify, Action::ModifyThen, Action::ModifyElse}}};
constexpr std::array<NamedAction, 3> itemActions{{{"add_item", Action::AddItem},
                                                  {"remove_item", Action::RemoveItem},
                                                  {"modify_item", Action::ModifyItem}}};

[[nodiscard]] std::span<const NamedAction> actionsOf(EntryForm form) {
    switch (form) {
    case EntryForm::Item:
        return itemActions;
    case EntryForm::ModifyOnly:
        return std::span(fieldActions).last(1);
    default:
        return fieldActions;
    }
}

[[nodiscard]] bool allowsConditions(EntryForm form) {
    return form == EntryForm::Conditional || form == EntryForm::ModifyOnly;
}

[[nodiscard]] ChangeLevel readLevel(const jv::JV& value) {
    constexpr Choices<ChangeLevel, 5> levels{{{"breaking", ChangeLevel::Breaking},
                                              {"non_breaking", ChangeLevel::NonBreaking},
                                              {"non_functional", ChangeLevel::NonFunctional},
                                              {"none", ChangeLevel::None},
                                              {"nested", ChangeLevel::Nested}}};
    return choiceOf(value, levels, expectedString, "Invalid option");
}

void setLevels(NodeDiffConfig& entry, const NamedAction& action, ChangeLevel plain, ChangeLevel whenTrue,
               ChangeLevel whenFalse) {
    entry.set(action.plain, plain);
    if (action.whenTrue) {
        entry.set(*action.whenTrue, whenTrue);
        entry.set(*action.whenFalse, whenFalse);
    }
}

/// Flags are looked up by their condition in any entry, and so one level stands for both of its values.
void setLevel(NodeDiffConfig& entry, const NamedAction& action, ChangeLevel level) {
    setLevels(entry, action, level, level, level);
}

void readCondition(NodeDiffConfig& entry, const NamedAction& action, const Section& condition) {
    condition.requireKnown({"if", "then", "else"});
    const bool expected = condition.requiredBoolean("if");
    const ChangeLevel then = readLevel(condition.getRequired("then"));
    const ChangeLevel otherwise = readLevel(condition.getRequired("else"));
    // Where no value is at hand, the worse of the two.
    setLevels(entry, action, std::max(then, otherwise), expected ? then : otherwise,
              expected ? otherwise : then);
}

[[nodiscard]] bool isExtension(std::string_view name) {
    return name.starts_with("x-");
}

/// A text is the level of all actions of the form; an object names the actions that it sets, and leaves the
/// others as they are.
void readEntry(
    NodeDiffConfig& entry, EntryForm form, const jv::JV& value,
    bool (*isNoAction)(std::string_view) = [](std::string_view) { return false; }) {
    const std::span<const NamedAction> actions = actionsOf(form);
    if (value.isString()) {
        for (const NamedAction& action : actions)
            setLevel(entry, action, readLevel(value));
        return;
    }
    if (!value.isObject())
        throw ConfigError(expectedEntry, &value);
    Section(value).requireKnown([&](std::string_view name) {
        return isNoAction(name) ||
               std::any_of(actions.begin(), actions.end(),
                           [&](const NamedAction& action) { return action.name == name; });
    });
    if (form == EntryForm::ModifyOnly && !value.has("modify"))
        throw ConfigError("Expected 'modified' property", &value); // with a "d", unlike the key; so be it
    for (const NamedAction& action : actions) {
        const jv::JV* level = value.get(action.name);
        if (level == nullptr)
            continue;
        if (!allowsConditions(form) || level->isString())
            setLevel(entry, action, readLevel(*level));
        else if (level->isObject())
            readCondition(entry, action, Section(*level));
        else
            throw ConfigError(expectedEntry, level);
    }
}

// ---- sections

/// The key of a field, or of a section that is a field by itself, which has an empty name.
[[nodiscard]] std::optional<ConfigKey> findKey(std::string_view section, std::string_view name) {
    for (std::uint32_t number = 0; number < configKeyCount; ++number) {
        const auto key = static_cast<ConfigKey>(number);
        if (configField(key).section == section && configField(key).name == name)
            return key;
    }
    return std::nullopt;
}

[[nodiscard]] bool isSection(std::string_view name) {
    return openapi::findShape(name) != nullptr;
}

[[nodiscard]] std::string_view sectionOf(openapi::NodeType type) {
    if (type > openapi::NodeType::SecurityRequirement)
        throw std::runtime_error("Unsupported node type");
    return openapi::shapeOf(openapi::kindOf(type)).name;
}

} // namespace

// ---- reading

Configuration Configuration::recommended() {
    static const Configuration embedded = [] {
        const auto document = jv::parseDocument(embeddedConfiguration("recommended.yaml"),
                                                {.format = jv::DocumentFormat::Yaml, .refLoader = {}});
        Configuration configuration;
        configuration.overlay(Section(document->root()->getRequiredObject("rules")));
        return configuration;
    }();
    return embedded;
}

Configuration Configuration::load(const jv::JV* section) {
    if (section == nullptr)
        return recommended();
    const Section given(*section);
    given.requireKnown({"extends", "rules"});
    constexpr Choices<Configuration (*)(), 1> rulesets{{{"recommended", Configuration::recommended}}};
    Configuration configuration;
    for (const jv::JV* ruleset : given.elements("extends"))
        configuration = choiceOf(*ruleset, rulesets, expectedString, "Unknown ruleset: {}")();
    configuration.overlay(given.section("rules"));
    return configuration;
}

void Configuration::overlay(const Section& rules) {
    overlayDefaults(rules.section("defaults"));
    for (const auto& [name, value] : rules.members()) {
        if (name == "defaults")
            continue;
        if (!isSection(name))
            throw unexpectedMember(*value);
        if (const auto key = findKey(name, ""); key)
            overlayField(*key, *value);
        else
            overlaySection(name, rules.section(name));
    }
}

void Configuration::overlayDefaults(const Section& defaults) {
    defaults.requireKnown({"extensions"});
    if (const jv::JV* value = defaults.get("extensions"); value != nullptr)
        readEntry(defaultExtension_, EntryForm::Field, *value);
}

/// A section that is one field: its actions and the extensions of its nodes stand side by side.
void Configuration::overlayField(ConfigKey key, const jv::JV& value) {
    const ConfigField& field = configField(key);
    readEntry(entries_[static_cast<std::size_t>(key)], field.form, value, isExtension);
    if (value.isObject())
        for (const auto& [name, entry] : value.members())
            if (isExtension(name))
                overlayExtension(field.section, name, *entry);
}

void Configuration::overlaySection(std::string_view section, const Section& fields) {
    for (const auto& [name, value] : fields.members()) {
        if (isExtension(name))
            overlayExtension(section, name, *value);
        else if (const auto key = findKey(section, name); key)
            readEntry(entries_[static_cast<std::size_t>(*key)], configField(*key).form, *value);
        else
            throw unexpectedMember(*value);
    }
}

void Configuration::overlayExtension(std::string_view section, std::string_view name, const jv::JV& value) {
    auto& ofSection = extensions_[std::string(section)];
    NodeDiffConfig& entry = ofSection.try_emplace(std::string(name), defaultExtension_).first->second;
    readEntry(entry, EntryForm::Field, value);
}

// ---- asking

const NodeDiffConfig& Configuration::entry(ConfigKey key) const {
    return entries_.at(static_cast<std::size_t>(key));
}

const NodeDiffConfig& Configuration::extension(openapi::NodeType type, std::string_view name) const {
    const auto section = extensions_.find(sectionOf(type));
    if (section == extensions_.end())
        return defaultExtension_;
    const auto found = section->second.find(name);
    return found == section->second.end() ? defaultExtension_ : found->second;
}

} // namespace specloom::openapi_diff
