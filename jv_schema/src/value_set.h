#pragma once

#include "jv/jv.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint64_t
#include <span>          // std::span
#include <unordered_map> // std::unordered_multimap
#include <vector>        // std::vector

namespace specloom::jv::schema {

/// JV::equals(), without memory of its own for scalars.
[[nodiscard]] bool equalValues(const JV& a, const JV& b);

/// Equal for values that are equal by JV::equals(), whatever the kinds of their numbers. Adds the number of
/// values that were looked at to `visited`.
[[nodiscard]] std::uint64_t hashOfValue(const JV& value, std::size_t& visited);

/// Values that belong to somebody else.
class ValueSet {
  public:
    explicit ValueSet(std::span<const JV* const> values);

    [[nodiscard]] std::span<const JV* const> values() const noexcept { return values_; }
    [[nodiscard]] bool contains(const JV& value, std::size_t& visited) const;

  private:
    std::vector<const JV*> values_;
    std::unordered_multimap<std::uint64_t, const JV*> byHash_; ///< empty for few values
};

} // namespace specloom::jv::schema
