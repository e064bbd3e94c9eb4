#pragma once

#include "foundation/hash.h"
#include "openapi_format/configuration.h"
#include "openapi_format/structure.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint8_t, std::uint32_t
#include <functional>    // std::equal_to
#include <limits>        // std::numeric_limits
#include <optional>      // std::optional
#include <string>        // std::string
#include <string_view>   // std::string_view
#include <unordered_map> // std::unordered_map
#include <vector>        // std::vector

namespace specloom::openapi_format {

/// The rank of a key that the order of its object's kind does not name.
inline constexpr std::uint32_t unnamed = std::numeric_limits<std::uint32_t>::max();

/// The objects that stand under a key.
struct ChildPlan {
    openapi::Arrangement arrangement;
    std::uint8_t kind; ///< index into objectKinds()
};

/// All there is to know about one key in the objects of a kind.
struct KeyPlan {
    std::uint32_t rank = unnamed;                  ///< place in a fixed order, counted from 0
    std::optional<ChildPlan> child = std::nullopt; ///< nothing for payload
};

/// What to do with the objects of one kind: order and structure in one table, so that each key of a document
/// is looked up once.
struct KindPlan {
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept { return fnv1a(text); }
    };

    PropertyOrder::Mode mode = PropertyOrder::Mode::Original;
    openapi::References references = openapi::References::None;
    std::unordered_map<std::string, KeyPlan, Hash, std::equal_to<>> keys;
    std::optional<ChildPlan> entries; ///< of keys that `keys` gives no child for
    bool evenExtensions = false;      ///< whether keys that start with "x-" are ordinary ones there

    [[nodiscard]] KeyPlan find(std::string_view key) const;
};

/// The plan of each of objectKinds(), in that order.
[[nodiscard]] std::vector<KindPlan> planKinds(const Configuration& configuration);

} // namespace specloom::openapi_format
