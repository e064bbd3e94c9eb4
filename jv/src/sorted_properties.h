#pragma once

#include "jv/jv.h"

#include <cstddef>     // std::size_t
#include <functional>  // std::function
#include <span>        // std::span
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::jv {

/// The members of one object in the order in which they are to be written. The object is not owned and must
/// not change meanwhile.
class SortedProperties {
  public:
    /// Byte-wise order of the keys.
    explicit SortedProperties(const JV* object);
    /// The keys named in `order` first, in that order; all others behind them, byte-wise. Names that the
    /// object has not are skipped; of a name that stands twice the first place counts.
    SortedProperties(const JV* object, std::span<const std::string_view> order);
    /// Exactly these members.
    SortedProperties(const JV* object, std::vector<Member> members);

    /// Whether the keys are in the object's own, byte-wise order.
    [[nodiscard]] bool natural() const noexcept { return natural_; }
    [[nodiscard]] const JV* object() const noexcept { return object_; }
    [[nodiscard]] std::size_t size() const noexcept { return members_.size(); }
    [[nodiscard]] Member at(std::size_t i) const { return members_.at(i); }
    [[nodiscard]] std::vector<std::string_view> keys() const;
    [[nodiscard]] auto begin() const noexcept { return members_.begin(); }
    [[nodiscard]] auto end() const noexcept { return members_.end(); }

  private:
    bool natural_;
    const JV* object_;
    std::vector<Member> members_;
};

/// Decides how an object is written. It is called once for every object of a document.
using PropertySorter = std::function<SortedProperties(const JV*)>;

} // namespace specloom::jv
