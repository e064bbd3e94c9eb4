#pragma once

#include "jv_generator/random_engine.h"

#include <cstdint>     // std::uint64_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv_generator {

/// How long a text is to be, in code points, both ends allowed. What is made for a format keeps to it where
/// the format leaves room.
struct TextLength {
    std::uint64_t min;
    std::uint64_t max;
};

/// Appends a text, which has its format whatever the length.
using TextMaker = void (*)(RandomEngine& random, const TextLength& length, std::string& text);
using TextCheck = bool (*)(std::string_view text) noexcept;

/// What makes texts of a format, or of a content encoding (RFC 4648), by its name; null for those whose texts
/// are not known to have a form of their own.
[[nodiscard]] TextMaker textMakerOf(std::string_view format);

/// Whether a text has a format; null for formats that nothing checks.
[[nodiscard]] TextCheck textCheckOf(std::string_view format);

/// Those that have a maker.
[[nodiscard]] std::vector<std::string_view> formatNames();

} // namespace specloom::jv_generator
