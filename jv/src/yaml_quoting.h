#pragma once

#include <string_view> // std::string_view

namespace specloom::jv {

/// Whether a string would not read back as the same string if the emitter were free to leave it plain.
[[nodiscard]] bool needsDoubleQuotes(std::string_view text) noexcept;

} // namespace specloom::jv
