#include "number/number_literal.h"

#include "foundation/ascii.h"

#include <stdexcept> // std::runtime_error

namespace specloom::number {
namespace {

enum LiteralStatus : std::int32_t {
    good = 0,
    emptyText = 1,
    badFirstCharacter = 2,
    digitRequired = 3,
    noIntegerDigits = 4,
    badAfterInteger = 5,
    noFractionDigits = 6,
    badAfterFraction = 7,
    badExponent = 8,
    badAfterExponent = 9
};

constexpr const char* errorTexts[] = {
    "",
    "empty string",
    "Invalid number format - expected sign or digit",
    "Invalid number format - expected digit",
    "Invalid number format - no integral digits found",
    "Invalid number format",
    "Invalid number format - no fractional digits found",
    "Invalid number format - expected exponent sign",
    "Invalid number format - expected exponent sign or digit",
    "Invalid number format - expected end of string",
};

const char* skipDigits(const char* at, const char* end) noexcept {
    while (at != end && ascii::isDigit(*at))
        ++at;
    return at;
}

/// From behind the "e" to the end of the text.
std::int32_t classifyExponent(NumberLiteral& literal, const char* at, const char* end) noexcept {
    if (at == end)
        return badAfterInteger;
    if (*at == '+' || *at == '-') {
        literal.exponentNegative = *at == '-';
        ++at;
    }
    literal.exponentBegin = at;
    literal.exponentEnd = skipDigits(at, end);
    if (literal.exponentEnd == at)
        return badExponent;
    return literal.exponentEnd == end ? good : badAfterExponent;
}

std::int32_t classify(NumberLiteral& literal, const char* at, const char* end) noexcept {
    if (at == end)
        return emptyText;
    if (*at == '-' || *at == '+') {
        literal.negative = *at == '-';
        if (++at == end)
            return noIntegerDigits;
        if (!ascii::isDigit(*at))
            return digitRequired;
    } else if (!ascii::isDigit(*at)) {
        return badFirstCharacter;
    }
    literal.integerBegin = at;
    literal.integerEnd = at = skipDigits(at, end);
    if (at == end)
        return good;
    if (*at == '.') {
        literal.fractionBegin = ++at;
        literal.fractionEnd = skipDigits(at, end);
        if (literal.fractionEnd == at)
            return noFractionDigits;
        at = literal.fractionEnd;
        if (at == end)
            return good;
        if (*at != 'e' && *at != 'E')
            return badAfterFraction;
    } else if (*at != 'e' && *at != 'E') {
        return badAfterInteger;
    }
    return classifyExponent(literal, at + 1, end);
}

} // namespace

const char* numberLiteralError(std::int32_t status) noexcept {
    return errorTexts[status];
}

NumberLiteral classifyNumber(const char* begin, const char* end) noexcept {
    NumberLiteral literal;
    literal.status = classify(literal, begin, end);
    return literal;
}

NumberLiteral parseNumberLiteral(const char* begin, const char* end) {
    const NumberLiteral literal = classifyNumber(begin, end);
    if (literal.status != good)
        throw std::runtime_error(numberLiteralError(literal.status));
    return literal;
}

} // namespace specloom::number
