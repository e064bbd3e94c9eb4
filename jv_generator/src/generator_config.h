#pragma once

#include "jv/jv.h"

#include <cstdint> // std::uint64_t

namespace specloom::jv_generator {

/// The limits for what a schema leaves open. Both ends of a range are allowed.
class GeneratorConfig {
  public:
    /// Takes over "minimum", "maximum", "minLength", "maxLength", "minItems", "maxItems", "minProperties" and
    /// "maxProperties" of an object, of which 0 and 10 stand for those that are missing. Throws
    /// jv::JVError for a member that is no number, std::runtime_error "Cannot cast double to long" for a
    /// length or count that is a float, and what the setters throw; pairs before the one at fault stay set.
    void readFrom(const jv::JV& object);

    // Each throws std::invalid_argument "Min must be less than or equal to max".
    void setNumberRange(const number::Number& min, const number::Number& max);
    void setLengthRange(std::uint64_t min, std::uint64_t max);
    void setItemsRange(std::uint64_t min, std::uint64_t max);
    void setPropertiesRange(std::uint64_t min, std::uint64_t max);

    [[nodiscard]] const number::Number& minimum() const noexcept { return minimum_; }
    [[nodiscard]] const number::Number& maximum() const noexcept { return maximum_; }
    [[nodiscard]] std::uint64_t minLength() const noexcept { return minLength_; }
    [[nodiscard]] std::uint64_t maxLength() const noexcept { return maxLength_; }
    [[nodiscard]] std::uint64_t minItems() const noexcept { return minItems_; }
    [[nodiscard]] std::uint64_t maxItems() const noexcept { return maxItems_; }
    [[nodiscard]] std::uint64_t minProperties() const noexcept { return minProperties_; }
    [[nodiscard]] std::uint64_t maxProperties() const noexcept { return maxProperties_; }

  private:
    number::Number minimum_ = 0;
    number::Number maximum_ = 10;
    std::uint64_t minLength_ = 0;
    std::uint64_t maxLength_ = 10;
    std::uint64_t minItems_ = 0;
    std::uint64_t maxItems_ = 10;
    std::uint64_t minProperties_ = 0; ///< of those that are not required
    std::uint64_t maxProperties_ = 10;
};

} // namespace specloom::jv_generator
