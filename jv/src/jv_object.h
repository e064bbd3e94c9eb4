#pragma once

#include "jv/jv.h"

#include <cstdint> // std::uint32_t
#include <vector>  // std::vector

namespace specloom::jv {

/// What an object needs once it was edited; stands directly before the entries of a block of its own. An
/// object as it was read has none: all its entries have values, and their order is that of the source.
struct JV::EditHeader {
    struct Displaced {
        JV* value;
        Displaced* next;
    };

    std::uint32_t live = 0;   ///< entries with a value
    std::uint32_t listed = 0; ///< the first entries, whose order is that of the source
    Displaced* displaced =
        nullptr; ///< former values of keys that were set again; still found by their pointers
    std::vector<std::uint32_t>* table = nullptr; ///< slots by key, open addressing; only above linearKeys
    void* reserved = nullptr;                    ///< keeps the entries aligned to 16 bytes
};

/// Up to so many keys a linear search is no slower than anything cleverer.
inline constexpr std::uint32_t linearKeys = 8;
/// "No such slot", and the largest number of entries.
inline constexpr std::uint32_t noSlot = 0xffffffff;

} // namespace specloom::jv
