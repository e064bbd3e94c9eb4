#pragma once

#include <cstddef>     // std::size_t
#include <string_view> // std::string_view

namespace specloom::bench {

/// Runs libyaml's parser over a text and throws the events away. Returns their number, or 0 for a faulty
/// text.
[[nodiscard]] std::size_t countYamlEvents(std::string_view text);

} // namespace specloom::bench
