#include "number/big_float_math.h"
#include "number/radix.h"

#include <algorithm> // std::max
#include <iterator>  // std::back_inserter
#include <optional>  // std::optional

#include <fmt/format.h> // fmt::format_to

namespace specloom::number {
namespace {

/// The value 0.digits * radix^place.
struct TextDigits {
    std::string digits;
    std::int64_t place = 1;
};

/// |value| * radix^`scale`, rounded to an integer.
std::string scaledInteger(const BigFloat& value, unsigned radix, std::int64_t scale, Flags mode) {
    // Cut off behind the binary point, so that the one rounding is that to an integer.
    const std::uint64_t scaleBits = digitsToBits(static_cast<std::uint64_t>(scale < 0 ? -scale : scale),
                                                 radix, scale < 0 ? Bound::Lower : Bound::Upper);
    const std::int64_t bits = value.exponent() + (scale < 0 ? -static_cast<std::int64_t>(scaleBits)
                                                            : static_cast<std::int64_t>(scaleBits));
    const auto prec = static_cast<Precision>(std::max<std::int64_t>(bits, 1) + 8);
    BigFloat scaled;
    const Status status =
        BigFloatMath::mulPowRadix(scaled, value, radix, scale, 0, prec, roundTowardZero | extendedExponents);
    std::string digits;
    appendDigits(digits, BigFloatMath::toNatural(scaled, (status & statusInexact) != 0, mode), radix);
    return digits;
}

/// The `count` leading digits of a regular value, rounded.
TextDigits leadingDigits(const BigFloat& value, unsigned radix, std::uint32_t count, Flags mode) {
    TextDigits result;
    // Right, or one too small.
    result.place = bitsToDigits(std::int64_t{value.exponent()} - 1, radix, Bound::Lower) + 1;
    for (;; ++result.place) {
        result.digits = scaledInteger(value, radix, std::int64_t{count} - result.place, mode);
        if (result.digits.size() <= count)
            return result;
    }
}

/// All digits of a regular value down to `count` places behind the point, rounded.
TextDigits digitsBehindPoint(const BigFloat& value, unsigned radix, std::uint32_t count, Flags mode) {
    TextDigits result;
    result.digits = scaledInteger(value, radix, count, mode);
    if (result.digits.empty())
        return {std::string(std::size_t{count} + 1, '0'), 1};
    result.place = static_cast<std::int64_t>(result.digits.size()) - count;
    return result;
}

void removeTrailingZeros(std::string& digits) {
    digits.erase(std::max<std::size_t>(digits.find_last_not_of('0') + 1, 1));
}

/// Whether the digits from `from` on are half a unit of the digit before them or more.
bool halfOrMore(const std::string& digits, std::size_t from, unsigned radix) {
    if (radix % 2 == 0)
        return digitValue(digits[from]) >= radix / 2;
    // In an odd radix the half has no end: the middle digit over and over.
    const std::uint8_t middle = static_cast<std::uint8_t>(radix / 2);
    while (from < digits.size() && digitValue(digits[from]) == middle)
        ++from;
    return from < digits.size() && digitValue(digits[from]) > middle;
}

/// `digits` cut to the first `count`, or the next number of so many digits above that; the place moves when a
/// carry comes out at the top.
TextDigits shortened(const TextDigits& digits, std::size_t count, bool up, unsigned radix) {
    TextDigits result{digits.digits.substr(0, count), digits.place};
    if (!up)
        return result;
    const char last = radix <= 10 ? static_cast<char>('0' + radix - 1) : static_cast<char>('a' + radix - 11);
    while (!result.digits.empty() && result.digits.back() == last)
        result.digits.pop_back();
    if (result.digits.empty())
        return {"1", digits.place + 1};
    char& digit = result.digits.back();
    digit = digit == '9' ? 'a' : static_cast<char>(digit + 1);
    return result;
}

bool readsBack(const TextDigits& digits, const BigFloat& value, unsigned radix, Precision prec) {
    const std::string text =
        fmt::format("{}@{}", digits.digits, digits.place - static_cast<std::int64_t>(digits.digits.size()));
    BigFloat read;
    if (BigFloat::fromText(read, text, nullptr, radix, prec, noSpecials | noHexPrefix | extendedExponents) ==
        statusOutOfMemory)
        throw std::bad_alloc();
    return BigFloat::compareMagnitude(read, value) == 0;
}

bool isPowerOfTwo(const BigFloat& value) {
    return value.limbs().size() == 1 && value.limbs()[0] == 0x80000000;
}

/// Shorter and shorter texts for a value.
class Shortener {
  public:
    /// With `enough` digits the nearest text always reads back.
    Shortener(const BigFloat& value, unsigned radix, Precision prec, std::uint32_t enough)
        : value_(value), radix_(radix), prec_(prec), enough_(enough),
          // Below a power of two the next value is only half as far as above, and in an odd radix the digits
          // at hand may not show on which side of the half they are: there, both neighbours have to be looked
          // at.
          bothSides_(radix % 2 != 0 || isPowerOfTwo(value)),
          // Cut and not rounded: a second rounding could go wrong by the first one.
          all_(leadingDigits(value, radix, enough + 1, roundTowardZero)) {}

    /// The fewest digits that read back to the value. Their number is found by halving, as whatever reads
    /// back does so with more digits too.
    [[nodiscard]] TextDigits fewest() const {
        // A value that was read from a short text shows it: but for the last few, its digits end in zeros, or
        // in what rounds to zeros. Then two looks are enough.
        TextDigits rough = nearest(std::max<std::size_t>(enough_, 5) - 4);
        removeTrailingZeros(rough.digits);
        std::size_t guess = rough.digits.size();
        TextDigits best = nearest(enough_);
        if (bothSides_)
            tryWith(enough_, best);
        std::size_t tooFew = 0;
        for (std::size_t sufficient = enough_; sufficient - tooFew > 1;) {
            const bool usable = guess > tooFew && guess < sufficient;
            const std::size_t count = usable ? guess : tooFew + (sufficient - tooFew) / 2;
            if (tryWith(count, best)) {
                sufficient = count;
                guess = count - 1;
            } else {
                tooFew = count;
            }
        }
        return best;
    }

  private:
    [[nodiscard]] bool roundsUp(std::size_t count) const { return halfOrMore(all_.digits, count, radix_); }
    [[nodiscard]] TextDigits nearest(std::size_t count) const {
        return shortened(all_, count, roundsUp(count), radix_);
    }

    /// Whether `count` digits do; `best` is them then, and as it was otherwise.
    bool tryWith(std::size_t count, TextDigits& best) const {
        TextDigits candidate = nearest(count);
        bool good = readsBack(candidate, value_, radix_, prec_);
        if (!good && bothSides_) {
            candidate = shortened(all_, count, !roundsUp(count), radix_);
            good = readsBack(candidate, value_, radix_, prec_);
        }
        if (good)
            best = std::move(candidate);
        return good;
    }

    const BigFloat& value_;
    unsigned radix_;
    Precision prec_;
    std::uint32_t enough_;
    bool bothSides_;
    TextDigits all_;
};

void appendExponent(std::string& out, std::int64_t place, unsigned radix, Flags flags) {
    const unsigned bits = bitsPerDigit(radix);
    const bool binary = bits != 0 && radix <= 16;
    const char marker = binary ? 'p' : radix <= 10 ? 'e' : '@';
    const std::int64_t exponent = (place - 1) * (binary ? bits : 1);
    const bool plus = (flags & scriptStyle) != 0 && exponent >= 0;
    fmt::format_to(std::back_inserter(out), "{}{}{}", marker, plus ? "+" : "", exponent);
}

void appendPlain(std::string& out, const TextDigits& number) {
    const auto& [digits, place] = number;
    if (place <= 0) {
        out += "0.";
        out.append(static_cast<std::size_t>(-place), '0');
        out += digits;
        return;
    }
    const auto whole = static_cast<std::size_t>(place);
    if (digits.size() <= whole) {
        out += digits;
        out.append(whole - digits.size(), '0');
        return;
    }
    out.append(digits, 0, whole);
    out += '.';
    out.append(digits, whole);
}

void appendWithExponent(std::string& out, const TextDigits& number, unsigned radix, Flags flags) {
    out += number.digits[0];
    if (number.digits.size() > 1) {
        out += '.';
        out.append(number.digits, 1);
    }
    appendExponent(out, number.place, radix, flags);
}

const char* prefix(unsigned radix) {
    return radix == 16 ? "0x" : radix == 8 ? "0o" : radix == 2 ? "0b" : "";
}

} // namespace

void BigFloat::toText(std::string& out, const BigFloat& value, unsigned radix, std::uint32_t digits,
                      Flags flags) {
    if (value.isNaN()) {
        out += "NaN";
        return;
    }
    if (value.sign_ != 0)
        out += '-';
    if (value.isInfinite()) {
        out += (flags & scriptStyle) != 0 ? "Infinity" : "Inf";
        return;
    }
    if ((flags & radixPrefix) != 0)
        out += prefix(radix);

    const Flags format = flags & formatMask;
    const Flags mode = flags & roundingMask;
    TextDigits number;
    std::int64_t mostPlaces = digits;
    if (format == fractionDigits) {
        number = value.isZero() ? TextDigits{std::string(std::size_t{digits} + 1, '0'), 1}
                                : digitsBehindPoint(value, radix, digits, mode);
    } else if (format == fixedDigits) {
        digits = std::max(digits, 1U);
        number = value.isZero() ? TextDigits{std::string(digits, '0'), 1}
                                : leadingDigits(value, radix, digits, mode);
    } else {
        const Precision prec = digits != 0 ? digits : static_cast<Precision>(value.len_ * limbBits);
        const auto enough = static_cast<std::uint32_t>(bitsToDigits(prec, radix, Bound::Upper) + 1);
        mostPlaces = enough;
        if (value.isZero())
            number.digits += '0';
        else if (format == minimalDigits)
            number = Shortener(value, radix, prec, enough).fewest();
        else
            number = leadingDigits(value, radix, enough, roundNearestEven);
        removeTrailingZeros(number.digits);
    }
    const bool tooLong = format != fractionDigits && (number.place < -5 || number.place > mostPlaces);
    if (tooLong || (flags & forceExponent) != 0)
        appendWithExponent(out, number, radix, flags);
    else
        appendPlain(out, number);
}

} // namespace specloom::number
