#pragma once

#include "jv/jv.h"

#include <cstddef> // std::size_t
#include <cstdint> // std::uint64_t

// When values of a document are the same one: what sets of them go by.
namespace specloom::jv {

/// As JV::equals(), but numbers are compared by number::compareExactly(): so two values that equal a third
/// one equal each other, and a hash can tell apart what differs. Without memory of its own for scalars.
[[nodiscard]] bool equalValues(const JV& a, const JV& b);

/// Equal for values that equalValues() finds equal, whatever the kinds of their numbers. Under the key of
/// keyedHash(), unlike JV::hash(), for which anybody can write values that collide.
[[nodiscard]] std::uint64_t hashOfValue(const JV& value);
/// Adds the number of values that were looked at to `visited`.
[[nodiscard]] std::uint64_t hashOfValue(const JV& value, std::size_t& visited);

/// Both for pointers to values, as the functions of a container.
struct ValueHash {
    [[nodiscard]] std::size_t operator()(const JV* value) const { return hashOfValue(*value); }
};
struct ValueEqual {
    [[nodiscard]] bool operator()(const JV* a, const JV* b) const { return equalValues(*a, *b); }
};

} // namespace specloom::jv
