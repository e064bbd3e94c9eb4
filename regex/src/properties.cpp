#include "regex/properties.h"

#include "regex/properties_data.h"

namespace specloom::regex {

namespace {

std::optional<std::string_view> shortNameOf(std::span<const PropertyAlias> aliases, std::string_view name) {
    for (const PropertyAlias& alias : aliases) {
        if (alias.name == name)
            return alias.shortName;
    }
    return std::nullopt;
}

/// The code points whose value is one that `accepts` takes.
template <typename Accepts>
CharSet membersOf(std::span<const PropertyRun> runs, Accepts accepts) {
    CharSet result;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        if (accepts(std::string_view(runs[i].value)))
            result.add(runs[i].first, i + 1 < runs.size() ? runs[i + 1].first - 1 : lastCodePoint);
    }
    result.normalize();
    return result;
}

std::optional<CharSet> generalCategory(std::string_view name) {
    const auto category = shortNameOf(categoryAliasTable(), name);
    if (!category)
        return std::nullopt;
    return membersOf(categoryTable(), [&](std::string_view value) {
        // "L" stands for every category that begins with it, "LC" for the letters with case.
        if (*category == "LC")
            return value == "Lu" || value == "Ll" || value == "Lt";
        return value.starts_with(*category);
    });
}

std::optional<CharSet> script(std::string_view name) {
    const auto wanted = shortNameOf(scriptAliasTable(), name);
    if (!wanted)
        return std::nullopt;
    return membersOf(scriptTable(), [&](std::string_view value) { return value == *wanted; });
}

bool lists(std::string_view names, std::string_view name) {
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(' '), names.size());
        if (names.substr(0, end) == name)
            return true;
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return false;
}

std::optional<CharSet> scriptExtensions(std::string_view name) {
    const auto wanted = shortNameOf(scriptAliasTable(), name);
    if (!wanted)
        return std::nullopt;
    // Members of the script less those whose extensions leave it out, and those whose extensions list it.
    CharSet outside = script(name)->complement();
    outside.add(membersOf(scriptExtensionTable(), [](std::string_view value) { return !value.empty(); }));
    outside.normalize();
    CharSet result = outside.complement();
    result.add(
        membersOf(scriptExtensionTable(), [&](std::string_view value) { return lists(value, *wanted); }));
    result.normalize();
    return result;
}

std::optional<CharSet> binaryProperty(std::string_view name) {
    if (name == "Any")
        return CharSet{{0, lastCodePoint}};
    if (name == "ASCII")
        return CharSet{{0, 0x7F}};
    if (name == "Assigned")
        return generalCategory("Cn")->complement();
    for (const BinaryProperty& property : binaryPropertyTable()) {
        if (name != property.name && name != property.shortName)
            continue;
        CharSet result;
        for (std::size_t i = 0; i + 1 < property.boundaries.size(); i += 2)
            result.add(property.boundaries[i], property.boundaries[i + 1] - 1);
        return result;
    }
    return std::nullopt;
}

} // namespace

std::optional<CharSet> unicodeProperty(std::string_view expression) {
    const std::size_t equals = expression.find('=');
    if (equals == std::string_view::npos) {
        const auto category = generalCategory(expression);
        return category ? category : binaryProperty(expression);
    }
    const std::string_view name = expression.substr(0, equals);
    const std::string_view value = expression.substr(equals + 1);
    if (name == "General_Category" || name == "gc")
        return generalCategory(value);
    if (name == "Script" || name == "sc")
        return script(value);
    if (name == "Script_Extensions" || name == "scx")
        return scriptExtensions(value);
    return std::nullopt;
}

} // namespace specloom::regex
