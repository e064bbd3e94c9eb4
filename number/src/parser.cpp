#include "number/number.h"
#include "number/number_literal.h"

#include <algorithm>    // std::any_of
#include <charconv>     // std::from_chars
#include <cmath>        // std::isinf
#include <stdexcept>    // std::runtime_error
#include <system_error> // std::errc

namespace specloom::number {
namespace {

bool hasNonZeroDigit(const NumberLiteral& literal) {
    const auto nonZero = [](char c) { return c != '0'; };
    return std::any_of(literal.integerBegin, literal.integerEnd, nonZero) ||
           std::any_of(literal.fractionBegin, literal.fractionEnd, nonZero);
}

template <typename T>
std::optional<Number> convert(const char* begin, const char* end) {
    T value{};
    const auto [stopped, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || stopped != end)
        return std::nullopt;
    return Number(value);
}

/// Empty when a double can hold the value only as infinity, or as zero although a digit is not.
std::optional<Number> convertFloat(const NumberLiteral& literal, const char* begin, const char* end) {
    double value = 0;
    const auto [stopped, error] = std::from_chars(begin, end, value);
    // Whether a result of zero comes with an error is a matter of the library.
    const bool outOfRange = error == std::errc::result_out_of_range || std::isinf(value) || value == 0;
    if (outOfRange && hasNonZeroDigit(literal))
        return std::nullopt;
    if (outOfRange)
        // A zero with an exponent beyond everything is a zero still.
        return Number(literal.negative ? -0.0 : 0.0);
    return Number(value);
}

/// The machine number of a good literal; empty if it has too many digits or is out of range.
std::optional<Number> toMachine(const NumberLiteral& literal, const char* end) {
    if (literal.digitCount() >= bigDigitCount)
        return std::nullopt;
    // std::from_chars knows no "+".
    const char* begin = literal.integerBegin - (literal.negative ? 1 : 0);
    if (literal.hasFraction() || literal.hasExponent())
        return convertFloat(literal, begin, end);
    if (literal.negative)
        return convert<std::int64_t>(begin, end);
    return convert<std::uint64_t>(begin, end);
}

} // namespace

Number Number::fromText(std::string_view text) {
    const char* end = text.data() + text.size();
    const NumberLiteral literal = parseNumberLiteral(text.data(), end);
    if (auto machine = toMachine(literal, end))
        return *std::move(machine);
    BigFloat value;
    if (BigFloat::fromText(value, text, nullptr, 10, bigPrecision, roundNearestEven) == statusOutOfMemory)
        throw std::runtime_error(numberLiteralError(5));
    return Number(std::move(value));
}

std::optional<Number> Number::tryParse(std::string_view text) {
    const char* end = text.data() + text.size();
    const NumberLiteral literal = classifyNumber(text.data(), end);
    if (literal.status != 0)
        return std::nullopt;
    if (auto machine = toMachine(literal, end))
        return machine;
    BigFloat value;
    if (BigFloat::fromText(value, text, nullptr, 10, bigPrecision, roundNearestEven) == statusOutOfMemory)
        throw std::runtime_error(numberLiteralError(5));
    if (value.isInfinite() || (value.isZero() && hasNonZeroDigit(literal)))
        return std::nullopt;
    return Number(std::move(value));
}

} // namespace specloom::number
