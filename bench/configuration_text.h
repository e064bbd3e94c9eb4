#pragma once

#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <fmt/core.h>

namespace specloom::bench {

/// A configuration file with members of "commands", and the formats without which the document would be
/// refused.
[[nodiscard]] inline std::string configurationText(std::string_view commands,
                                                   const std::vector<std::string>& formats) {
    std::string list;
    for (const std::string& format : formats)
        list += fmt::format(R"({}{{"name": "{}", "type": "string"}})", list.empty() ? "" : ", ", format);
    return fmt::format(R"({{"version": "1.0", "commands": {{{}}}, "openapi": {{"custom_formats": [{}]}}}})",
                       commands, list);
}

} // namespace specloom::bench
