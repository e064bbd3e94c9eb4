#pragma once

#include "openapi_generator/plugin.h"

#include <memory>      // std::unique_ptr
#include <span>        // std::span
#include <string_view> // std::string_view

namespace specloom::fuzz {

/// A generator that makes files, as a target that asks the same of all of them sees it.
struct Generator {
    std::string_view name; ///< such as "client_fetch"
    std::unique_ptr<openapi_generator::Plugin> (*make)(openapi_generator::PluginRunner& host);
};

/// All of them.
[[nodiscard]] std::span<const Generator> generators() noexcept;

} // namespace specloom::fuzz
