#pragma once

#include "foundation/durability.h"

#include <cstdint>     // std::uint8_t
#include <filesystem>  // std::filesystem::path
#include <string_view> // std::string_view

#include <sys/stat.h> // struct stat

namespace specloom {

enum class Replacement : std::uint8_t {
    Done,
    Failed,     ///< there is no room, or the disk fails
    Impossible, ///< here it cannot be done in this way
};

/// Puts a new file in the place of the regular file `path`, whose links are followed: a sibling in its folder
/// that has the content, the mode, the owner and the extended attributes is renamed to it; it outlives what
/// `durability` says. `original` is a descriptor of the file and `status` its status. Unless the result is
/// Done, all is as it was.
[[nodiscard]] Replacement replaceBySibling(const std::filesystem::path& path, int original,
                                           const struct stat& status, std::string_view content,
                                           Durability durability);

/// Sees to it that what was written to a file or folder outlives that. False when the disk fails or has no
/// room; file systems that know no waiting do not fail.
[[nodiscard]] bool settle(int descriptor, Durability durability);

} // namespace specloom
