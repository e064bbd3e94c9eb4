#pragma once

#include <string_view> // std::string_view

namespace specloom::jv {

/// Whether a plain scalar of this text is something other than a string for readers that follow the YAML 1.1
/// type repository (null, bool, int, float, timestamp, merge, value) or the core schema of YAML 1.2.2
/// (section 10.3.2).
[[nodiscard]] bool hasImplicitType(std::string_view text) noexcept;

} // namespace specloom::jv
