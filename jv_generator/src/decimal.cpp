#include "jv_generator/decimal.h"

#include <algorithm> // std::clamp
#include <charconv>  // std::from_chars
#include <cstdlib>   // std::strtod
#include <numeric>   // std::gcd
#include <string>    // std::string

namespace specloom::jv_generator {

namespace {

constexpr int mostDigits = 36;
constexpr int mostDecimals = 30;

/// A number as it is written: the digits, and the power of ten of the last one.
struct Written {
    Integer digits = 0;
    int exponent = 0;
    bool isCut = false; ///< digits behind the last one were left out
};

[[nodiscard]] Written writtenOf(const number::Number& value) {
    const std::string text = value.toString();
    Written written;
    bool isBehindPoint = false;
    int count = 0;
    std::size_t i = text.starts_with('-') ? 1 : 0;
    for (; i < text.size() && text[i] != 'e' && text[i] != 'E'; ++i) {
        if (text[i] == '.') {
            isBehindPoint = true;
        } else if (count < mostDigits) {
            written.digits = written.digits * 10 + (text[i] - '0');
            count += written.digits != 0 ? 1 : 0;
            written.exponent -= isBehindPoint ? 1 : 0;
        } else {
            written.isCut |= text[i] != '0';
            written.exponent += isBehindPoint ? 0 : 1;
        }
    }
    if (i < text.size()) {
        int exponent = 0;
        const std::size_t start = i + (text[i + 1] == '+' ? 2 : 1);
        std::from_chars(text.data() + start, text.data() + text.size(), exponent);
        written.exponent += std::clamp(exponent, -10000, 10000);
    }
    while (written.digits != 0 && written.digits % 10 == 0) {
        written.digits /= 10;
        ++written.exponent;
    }
    if (text.starts_with('-'))
        written.digits = -written.digits;
    return written;
}

[[nodiscard]] Integer scaled(const number::Number& value, int scale, bool isUp) {
    const Written written = writtenOf(value);
    if (written.digits == 0)
        return 0;
    const bool isNegative = written.digits < 0;
    const int shift = written.exponent + scale;
    Integer result = written.digits;
    if (shift >= 0) {
        for (int i = 0; i < shift; ++i) {
            result *= 10;
            if (result >= vast || result <= -vast)
                return isNegative ? -vast : vast;
        }
    } else if (shift < -mostDigits) {
        return isUp ? (isNegative ? 0 : 1) : (isNegative ? -1 : 0);
    } else {
        const Integer divisor = powerOfTen(-shift);
        result = isUp ? dividedUp(result, divisor) : dividedDown(result, divisor);
    }
    return std::clamp(result, -vast, vast);
}

} // namespace

Integer powerOfTen(int exponent) {
    Integer result = 1;
    for (; exponent > 0; --exponent)
        result *= 10;
    return result;
}

Integer dividedDown(Integer value, Integer divisor) {
    const Integer quotient = value / divisor;
    return quotient - (value % divisor < 0 ? 1 : 0);
}

Integer dividedUp(Integer value, Integer divisor) {
    const Integer quotient = value / divisor;
    return quotient + (value % divisor > 0 ? 1 : 0);
}

Integer scaledDown(const number::Number& value, int scale) {
    return scaled(value, scale, false);
}

Integer scaledUp(const number::Number& value, int scale) {
    return scaled(value, scale, true);
}

int decimalsOf(const number::Number& value) {
    return std::clamp(-writtenOf(value).exponent, 0, mostDecimals);
}

number::Number numberOf(Integer mantissa, int scale) {
    const bool isNarrow = mantissa >= INT64_MIN && mantissa <= INT64_MAX;
    if (isNarrow) { // which is much faster to divide
        auto narrow = static_cast<std::int64_t>(mantissa);
        for (; scale > 0 && narrow % 10 == 0; --scale)
            narrow /= 10;
        mantissa = narrow;
    } else {
        for (; scale > 0 && mantissa % 10 == 0; --scale)
            mantissa /= 10;
    }
    if (scale == 0 && mantissa >= INT64_MIN && mantissa <= INT64_MAX)
        return number::Number(static_cast<std::int64_t>(mantissa));
    if (scale == 0 && mantissa > 0 && mantissa <= Integer{UINT64_MAX})
        return number::Number(static_cast<std::uint64_t>(mantissa));
    // Both are exact as floats, and so the quotient is the nearest one.
    constexpr Integer exactMantissa = Integer{1} << 53;
    constexpr int exactPower = 22;
    if (scale <= exactPower && mantissa <= exactMantissa && mantissa >= -exactMantissa)
        return number::Number(static_cast<double>(mantissa) / static_cast<double>(powerOfTen(scale)));
    std::string text;
    for (Integer rest = mantissa < 0 ? -mantissa : mantissa; rest != 0; rest /= 10)
        text.insert(text.begin(), static_cast<char>('0' + static_cast<int>(rest % 10)));
    text += "e-" + std::to_string(scale);
    const double magnitude = std::strtod(text.c_str(), nullptr);
    return number::Number(mantissa < 0 ? -magnitude : magnitude);
}

Integer commonMultiple(Integer a, Integer b) {
    Integer x = a;
    for (Integer y = b; y != 0;) {
        const Integer rest = x % y;
        x = y;
        y = rest;
    }
    const Integer step = b / x;
    return step > vast / a ? vast : a * step;
}

} // namespace specloom::jv_generator
