#pragma once

#include "jv/jv.h"

#include <cstddef>       // std::size_t
#include <cstdint>       // std::uint64_t
#include <span>          // std::span
#include <unordered_map> // std::unordered_multimap
#include <vector>        // std::vector

namespace specloom::jv::schema {

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
