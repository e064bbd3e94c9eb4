#pragma once

#include "openapi_generator/plugin.h"

#include <iosfwd>      // std::ostream
#include <memory>      // std::unique_ptr
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::openapi_generator {

/// A plugin that has a name and generates nothing yet: it prints a line when it runs.
struct NamedPlugin {
    std::string_view name; ///< such as "client_cpp"
    std::string_view line;
};

/// In byte-wise order of their names.
[[nodiscard]] std::span<const NamedPlugin> namedPlugins() noexcept;

/// The plugin of that name, which prints to `out`; null when it is none of namedPlugins().
[[nodiscard]] std::unique_ptr<Plugin> makeNamedPlugin(std::string_view name, PluginRunner& host,
                                                      std::ostream& out);

} // namespace specloom::openapi_generator
