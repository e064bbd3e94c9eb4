// Numbers: the text of a number reads back as that number, and no digit is lost that a number can hold.

#include "fuzz/check.h"
#include "number/number.h"
#include "number/number_literal.h"
#include "test_support/exact_decimal.h"

#include <cmath>     // std::isfinite
#include <cstdlib>   // std::strtod
#include <optional>  // std::optional
#include <stdexcept> // std::runtime_error

namespace {

using specloom::fuzz::require;
using specloom::number::Number;
using specloom::number::NumberKind;
using specloom::test_support::ExactDecimal;

/// Empty when the strict form throws.
std::optional<Number> fromText(std::string_view text) {
    try {
        return Number::fromText(text);
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

bool isFinite(const Number& value) {
    if (value.kind() == NumberKind::Big)
        return !value.bigValue().isInfinite() && !value.bigValue().isNaN();
    return !value.isInfinite() && !value.isNaN();
}

/// 1000 bits tell all decimal numbers of so many digits apart.
constexpr std::size_t keptDigits = 300;

void requireSameValue(const std::string& text, const Number& value) {
    if (value.kind() == NumberKind::Float) {
        require(std::strtod(text.c_str(), nullptr) == value.floatValue(), "a float is the nearest one");
        return;
    }
    const auto expected = ExactDecimal::parse(text);
    const auto actual = ExactDecimal::parse(value.toString());
    require(actual.has_value(), "a number has the text of a number");
    // Below the smallest exponent there are no numbers left.
    if (!expected || expected->digits.size() > keptDigits || actual->digits.empty())
        return;
    require(*expected == *actual, "every digit is kept: " + text + " became " + value.toString());
}

void requireArithmetic(Number value) {
    const Number copy = value;
    require(copy.compare(value) == 0 && value.hash() == copy.hash(), "a copy is equal");
    static_cast<void>(value.isInteger());
    static_cast<void>(value.toString(6));
    value -= copy;
    require(value.compare(Number()) == 0, "less itself it is zero");
    const Number moved = std::move(value);
    require(moved.compare(0.0) == 0, "a moved zero is zero");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(specloom::fuzz::textOf(data, size));
    const bool isLiteral =
        specloom::number::classifyNumber(text.data(), text.data() + text.size()).status == 0;
    const auto strict = fromText(text);
    const auto lenient = Number::tryParse(text);
    require(strict.has_value() == isLiteral, "exactly the literals are numbers");
    require(!lenient || strict, "what the lenient form reads the strict one reads");
    if (!strict)
        return 0;
    require(lenient.has_value() || strict->kind() == NumberKind::Big,
            "the lenient form refuses only what is out of range");
    if (!isFinite(*strict))
        return 0;

    const std::string written = strict->toString();
    const Number again = Number::fromText(written);
    require(again.compare(*strict) == 0, "the text reads back as the number: " + written);
    // "-0" is the integer 0.
    require(again.toString() == written || written == "-0", "the text of that is the same: " + written);
    requireSameValue(text, *strict);
    requireArithmetic(*strict);
    return 0;
}
