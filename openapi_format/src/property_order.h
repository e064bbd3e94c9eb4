#pragma once

#include <cstdint>  // std::uint8_t
#include <optional> // std::optional
#include <string>   // std::string
#include <utility>  // std::move
#include <vector>   // std::vector

namespace specloom::openapi_format {

/// In which order the keys of one kind of object stand; may be unset.
class PropertyOrder {
  public:
    enum class Mode : std::uint8_t {
        Original, ///< as in the source
        Sorted,   ///< byte-wise
        Fixed,    ///< the keys of a list first, in its order; all others behind them, as in the source
    };

    /// Unset.
    PropertyOrder() = default;
    [[nodiscard]] static PropertyOrder original() { return PropertyOrder(Mode::Original, {}); }
    [[nodiscard]] static PropertyOrder sorted() { return PropertyOrder(Mode::Sorted, {}); }
    [[nodiscard]] static PropertyOrder fixed(std::vector<std::string> keys) {
        return PropertyOrder(Mode::Fixed, std::move(keys));
    }

    [[nodiscard]] bool isSet() const noexcept { return mode_.has_value(); }
    /// Throws std::runtime_error "Property order is not set".
    [[nodiscard]] Mode mode() const;
    /// The list of a fixed order. Throws std::runtime_error "Property order is not fixed" for any other.
    [[nodiscard]] const std::vector<std::string>& keys() const;

    friend bool operator==(const PropertyOrder&, const PropertyOrder&) = default;

  private:
    PropertyOrder(Mode mode, std::vector<std::string> keys) : mode_(mode), keys_(std::move(keys)) {}

    std::optional<Mode> mode_;
    std::vector<std::string> keys_;
};

} // namespace specloom::openapi_format
