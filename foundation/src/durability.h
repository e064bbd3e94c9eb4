#pragma once

#include <cstdint> // std::uint8_t

namespace specloom {

/// What a file that was written outlives.
enum class Durability : std::uint8_t {
    PowerCut, ///< it is on the disk, which takes milliseconds for each file
    Run,      ///< the system brings it to the disk when it likes
};

} // namespace specloom
