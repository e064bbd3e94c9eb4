#pragma once

#include <string_view> // std::string_view

namespace specloom {

/// A text that the program contains. The sources that cmake/SpecloomEmbed.cmake writes hold tables of them.
struct EmbeddedFile {
    std::string_view name; ///< relative to the folder that was embedded, with "/" on every system
    std::string_view content;
};

} // namespace specloom
