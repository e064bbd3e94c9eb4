#include "jv_generator/generator_config.h"

#include <stdexcept>   // std::invalid_argument, std::runtime_error
#include <string_view> // std::string_view

namespace specloom::jv_generator {

namespace {

template <typename T>
void requireOrder(const T& min, const T& max) {
    bool isOrdered = true;
    if constexpr (std::is_same_v<T, number::Number>)
        isOrdered = min.compare(max) <= 0;
    else
        isOrdered = min <= max;
    if (!isOrdered)
        throw std::invalid_argument("Min must be less than or equal to max");
}

[[nodiscard]] number::Number numberOr(const jv::JV& object, std::string_view name, int otherwise) {
    const jv::JV* value = object.getNumeric(name);
    return value == nullptr ? number::Number(otherwise) : value->number();
}

/// A count below 0 is none: taken as 64 bits it would be a huge one.
[[nodiscard]] std::uint64_t countOr(const jv::JV& object, std::string_view name, int otherwise) {
    const number::Number value = numberOr(object, name, otherwise);
    if (value.kind() == number::NumberKind::Big)
        throw std::runtime_error("Cannot cast double to long");
    const std::uint64_t count = value.toULong();
    if (value.compare(0) < 0)
        throw std::invalid_argument("Lengths and counts must not be negative");
    return count;
}

} // namespace

void GeneratorConfig::readFrom(const jv::JV& object) {
    setNumberRange(numberOr(object, "minimum", 0), numberOr(object, "maximum", 10));
    setLengthRange(countOr(object, "minLength", 0), countOr(object, "maxLength", 10));
    setItemsRange(countOr(object, "minItems", 0), countOr(object, "maxItems", 10));
    setPropertiesRange(countOr(object, "minProperties", 0), countOr(object, "maxProperties", 10));
}

void GeneratorConfig::setNumberRange(const number::Number& min, const number::Number& max) {
    requireOrder(min, max);
    minimum_ = min;
    maximum_ = max;
}

void GeneratorConfig::setLengthRange(std::uint64_t min, std::uint64_t max) {
    requireOrder(min, max);
    minLength_ = min;
    maxLength_ = max;
}

void GeneratorConfig::setItemsRange(std::uint64_t min, std::uint64_t max) {
    requireOrder(min, max);
    minItems_ = min;
    maxItems_ = max;
}

void GeneratorConfig::setPropertiesRange(std::uint64_t min, std::uint64_t max) {
    requireOrder(min, max);
    minProperties_ = min;
    maxProperties_ = max;
}

} // namespace specloom::jv_generator
