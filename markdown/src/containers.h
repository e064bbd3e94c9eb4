#pragma once

#include <cstddef>     // std::size_t
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::markdown {

/// The column, from 0 and with four for each tab, from which on block quotes and list items do not begin any
/// more. The parser looks at each open one for each line, also for each that is empty, so that their number
/// must have a bound.
inline constexpr std::size_t deepestContainer = 200;

/// The text with a backslash in each line that begins one there, so that its mark stands for itself; nothing
/// when there is none. In time in proportion to the text.
[[nodiscard]] std::optional<std::string> withoutDeepContainers(std::string_view text);

} // namespace specloom::markdown
