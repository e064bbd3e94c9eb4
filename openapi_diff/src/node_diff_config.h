#pragma once

#include "openapi_diff/change.h"

#include <cstdint>  // std::uint64_t
#include <optional> // std::optional

namespace specloom::openapi_diff {

/// The actions that are classified. The numbers are places of three bits in a NodeDiffConfig.
enum class Action : std::uint8_t {
    Add = 0,
    Remove = 1,
    Modify = 2,
    AddItem = 3,
    RemoveItem = 4,
    ModifyItem = 5,
    AddThen = 6,
    AddElse = 7,
    RemoveThen = 8,
    RemoveElse = 9,
    ModifyThen = 10,
    ModifyElse = 11,
};

/// The classifications of one field, three bits for each action.
class NodeDiffConfig {
  public:
    /// None for everything.
    constexpr NodeDiffConfig() noexcept = default;

    [[nodiscard]] constexpr ChangeLevel get(Action action) const noexcept {
        return static_cast<ChangeLevel>((bits_ >> shiftOf(action)) & 7U);
    }
    constexpr void set(Action action, ChangeLevel level) noexcept {
        bits_ &= ~(std::uint64_t{7} << shiftOf(action));
        bits_ |= static_cast<std::uint64_t>(level) << shiftOf(action);
    }

    /// The level of a change. Kinds 4, 5 and 6 (properties) read `add`, `remove` and `modify`, or with a
    /// condition their `then` or `else`; 7 to 12 (keys and elements) the item actions; 13 to 15 (extensions)
    /// the plain ones. Any other kind is an unreachable path.
    [[nodiscard]] ChangeLevel lookup(ChangeKind kind, std::optional<bool> condition = std::nullopt) const;

    friend bool operator==(const NodeDiffConfig&, const NodeDiffConfig&) = default;

  private:
    [[nodiscard]] static constexpr unsigned shiftOf(Action action) noexcept {
        return 3U * static_cast<unsigned>(action);
    }

    std::uint64_t bits_ = 0;
};

} // namespace specloom::openapi_diff
