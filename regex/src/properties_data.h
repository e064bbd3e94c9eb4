#pragma once

#include <span> // std::span

namespace specloom::regex {

/// The value holds from this code point up to the next run's; it is a short name, or several with a space
/// between.
struct PropertyRun {
    char32_t first;
    const char* value;
};

struct PropertyAlias {
    const char* shortName;
    const char* name;
};

/// Boundaries of the members, in turn the first that is one and the first that is none.
struct BinaryProperty {
    const char* shortName;
    const char* name;
    std::span<const char32_t> boundaries;
};

[[nodiscard]] std::span<const PropertyRun> categoryTable();
[[nodiscard]] std::span<const PropertyRun> scriptTable();
/// Empty where the only extension is the script itself.
[[nodiscard]] std::span<const PropertyRun> scriptExtensionTable();
[[nodiscard]] std::span<const PropertyAlias> categoryAliasTable();
[[nodiscard]] std::span<const PropertyAlias> scriptAliasTable();
[[nodiscard]] std::span<const BinaryProperty> binaryPropertyTable();

} // namespace specloom::regex
