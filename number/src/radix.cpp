#include "number/radix.h"

#include "foundation/ascii.h"
#include "number/big_context.h"

#include <algorithm> // std::reverse
#include <bit>       // std::countl_zero, std::countr_zero, std::has_single_bit

namespace specloom::number {
namespace {

/// All tables start with radix 2.
constexpr std::uint8_t digitsPerLimbTable[] = {
    32, 20, 16, 13, 12, 11, 10, 10, 9, 9, 8, 8, 8, 8, 8, 7, 7, 7,
    7,  7,  7,  7,  6,  6,  6,  6,  6, 6, 6, 6, 6, 6, 6, 6, 6,
};

/// log2(radix) with 29 fractional bits, to the nearest.
constexpr std::uint32_t log2Table[] = {
    0x20000000, 0x32b80347, 0x40000000, 0x4a4d3c26, 0x52b80347, 0x59d5d9fd, 0x60000000,
    0x6570068e, 0x6a4d3c26, 0x6eb3a9f0, 0x72b80347, 0x766a008e, 0x79d5d9fd, 0x7d053f6d,
    0x80000000, 0x82cc7edf, 0x8570068e, 0x87ef05ae, 0x8a4d3c26, 0x8c8ddd45, 0x8eb3a9f0,
    0x90c10501, 0x92b80347, 0x949a784c, 0x966a008e, 0x982809d6, 0x99d5d9fd, 0x9b74948f,
    0x9d053f6d, 0x9e88c6b3, 0xa0000000, 0xa16bad37, 0xa2cc7edf, 0xa4231623, 0xa570068e,
};
constexpr unsigned log2FractionBits = 29;

/// 1 / log2(radix) with 64 fractional bits, cut off; powers of two have no use for it.
constexpr std::uint64_t inverseLog2Table[] = {
    0xffffffffffffffff, 0xa1849cc1a9a9e94e, 0x8000000000000000, 0x6e40d1a4143dcb94, 0x6308c91b702a7cf4,
    0x5b3064eb3aa6d388, 0x5555555555555555, 0x50c24e60d4d4f4a7, 0x4d104d427de7fbcc, 0x4a00270775914e88,
    0x4768ce0d05818e12, 0x452e53e365907bda, 0x433cfffb4b5aae55, 0x41867711b4f85355, 0x4000000000000000,
    0x3ea16afd58b10966, 0x3d64598d154dc4de, 0x3c43c23018bb5563, 0x3b3b9a42873069c7, 0x3a4898f06cf41ac9,
    0x39680b13582e7c18, 0x3897b2b751ae561a, 0x37d5aed131f19c98, 0x372068d20a1ee5ca, 0x3676867e5d60de29,
    0x35d6deeb388df86f, 0x354071d61c77fa2e, 0x34b260c5671b18ac, 0x342be986572b45cc, 0x33ac61b998fbbdf2,
    0x3333333333333333, 0x32bfd90114c12861, 0x3251dcf6169e45f2, 0x31e8d59f180dc630, 0x3184648db8153e7a,
};

/// Up to this many limbs, limb by limb is faster than dividing and conquering.
constexpr std::size_t simpleLimbs = 40;

/// floor(|bits| * inverse); the product has up to 97 bits.
std::uint64_t scaleByInverse(std::uint64_t bits, std::uint64_t inverse) noexcept {
    const std::uint64_t high = bits * (inverse >> 32);
    const std::uint64_t low = (bits & 0xffffffff) * (inverse & 0xffffffff);
    const std::uint64_t lowCarry = (bits >> 32) * (inverse & 0xffffffff);
    // All three in units of 2^-32; the sum stays below 2^64, since bits <= 2^32 and inverse < 0.64 * 2^64.
    return (high + lowCarry + (low >> 32)) >> 32;
}

/// Digits in simple steps of a limb, each of which walks over what is there so far.
Natural digitsToNaturalSimply(std::span<const std::uint8_t> digits, unsigned radix) {
    const unsigned perLimb = digitsPerLimb(radix);
    Natural result(digits.size() / perLimb + 1);
    std::size_t used = 0;
    for (std::size_t at = 0; at < digits.size();) {
        // The first group is the short one.
        const std::size_t count = at == 0 && digits.size() % perLimb != 0 ? digits.size() % perLimb : perLimb;
        Limb group = 0;
        Limb factor = 1;
        for (const std::size_t end = at + count; at < end; ++at) {
            group = group * radix + digits[at];
            factor *= radix;
        }
        const Limb carry = multiplyInPlace(result.limbs.data(), used, factor, group);
        if (carry != 0)
            result.limbs[used++] = carry;
    }
    result.length = used;
    return result;
}

/// The highest level whose power of the radix has fewer than `digits` digits behind its leading one.
unsigned splitLevel(std::size_t digits, unsigned radix) {
    unsigned level = 0;
    while ((std::size_t{digitsPerLimb(radix)} << (level + 1)) < digits)
        ++level;
    return level;
}

/// high * power + low.
Natural join(const Natural& high, const Natural& power, const Natural& low) {
    const std::size_t room = std::max(high.length + power.length, low.length) + 1;
    Natural result(room);
    const std::size_t product = high.length + power.length;
    multiply(result.limbs.data(), high.limbs.data(), high.length, power.limbs.data(), power.length);
    std::fill_n(result.limbs.data() + product, room - product, 0);
    addInPlace(result.limbs.data(), room, low.limbs.data(), low.length);
    result.trim(room);
    return result;
}

Natural packDigits(std::span<const std::uint8_t> digits, unsigned bits) {
    const std::size_t room = digits.size() * bits / limbBits + 1;
    Natural result(room + 1);
    std::fill_n(result.limbs.data(), room + 1, 0);
    std::uint64_t position = 0;
    for (std::size_t i = digits.size(); i-- > 0; position += bits) {
        const auto index = static_cast<std::size_t>(position / limbBits);
        const std::uint64_t wide = std::uint64_t{digits[i]} << position % limbBits;
        result.limbs[index] |= static_cast<Limb>(wide);
        result.limbs[index + 1] |= static_cast<Limb>(wide >> limbBits);
    }
    result.trim(room + 1);
    return result;
}

char digitCharacter(Limb digit) noexcept {
    return static_cast<char>(digit < 10 ? '0' + digit : 'a' + (digit - 10));
}

/// Appends digits from the least significant one on.
void appendReversedSimply(std::string& out, Natural value, unsigned radix) {
    const Limb divisor = limbRadix(radix);
    while (value.length != 0) {
        Limb group = divideInPlace(value.limbs.data(), value.length, divisor);
        value.trim(value.length);
        for (unsigned i = digitsPerLimb(radix); i-- > 0 && (value.length != 0 || group != 0); group /= radix)
            out += digitCharacter(group % radix);
    }
}

struct Division {
    Natural quotient;
    Natural remainder;
};

Division divideNatural(const Natural& a, const Natural& b) {
    const auto shift = static_cast<unsigned>(std::countl_zero(b.limbs[b.length - 1]));
    Natural divisor(b.length);
    shiftLeft(divisor.limbs.data(), b.limbs.data(), b.length, shift);
    Division result;
    result.remainder.limbs.resize(a.length + 1);
    Limb* rest = result.remainder.limbs.data();
    rest[a.length] = shiftLeft(rest, a.limbs.data(), a.length, shift);
    result.quotient.limbs.resize(a.length + 1 - b.length);
    divide(result.quotient.limbs.data(), rest, a.length, divisor.limbs.data(), b.length);
    result.quotient.trim(a.length + 1 - b.length);
    shiftRight(rest, rest, b.length, shift);
    result.remainder.trim(b.length);
    return result;
}

/// Appends digits from the least significant one on; at least `count` of them. The depth of the recursion is
/// the logarithm of the length.
void appendReversed(std::string& out, Natural value, unsigned radix, std::size_t count) {
    const std::size_t start = out.size();
    if (value.length <= simpleLimbs) {
        appendReversedSimply(out, std::move(value), radix);
    } else {
        const unsigned level = splitLevel(value.length * digitsPerLimb(radix) / 2, radix);
        Division parts = divideNatural(value, BigContext::instance().power(radix, level));
        const std::size_t lowDigits = std::size_t{digitsPerLimb(radix)} << level;
        appendReversed(out, std::move(parts.remainder), radix, lowDigits);
        appendReversed(out, std::move(parts.quotient), radix, 0);
    }
    if (out.size() - start < count)
        out.append(count - (out.size() - start), '0');
}

void appendPacked(std::string& out, const Natural& value, unsigned bits) {
    const auto unused = static_cast<unsigned>(std::countl_zero(value.limbs[value.length - 1]));
    const std::uint64_t digits = (std::uint64_t{value.length} * limbBits - unused + bits - 1) / bits;
    for (std::uint64_t i = digits; i-- > 0;) {
        const std::uint64_t position = i * bits;
        const auto index = static_cast<std::size_t>(position / limbBits);
        const Limb above = index + 1 < value.length ? value.limbs[index + 1] : 0;
        const std::uint64_t pair = std::uint64_t{above} << limbBits | value.limbs[index];
        out += digitCharacter(static_cast<Limb>(pair >> position % limbBits) & ((Limb{1} << bits) - 1));
    }
}

} // namespace

unsigned digitsPerLimb(unsigned radix) noexcept {
    return digitsPerLimbTable[radix - smallestRadix];
}

Limb limbRadix(unsigned radix) noexcept {
    Limb result = 1;
    for (unsigned i = digitsPerLimb(radix); i-- > 0;)
        result *= radix;
    return result;
}

unsigned bitsPerDigit(unsigned radix) noexcept {
    return std::has_single_bit(radix) ? static_cast<unsigned>(std::countr_zero(radix)) : 0;
}

std::uint64_t digitsToBits(std::uint64_t digits, unsigned radix, Bound bound) noexcept {
    if (const unsigned bits = bitsPerDigit(radix); bits != 0)
        return digits * bits;
    // The entry is off by less than 1 in its last place.
    const std::uint64_t entry = log2Table[radix - smallestRadix];
    return bound == Bound::Lower ? (digits * (entry - 1)) >> log2FractionBits
                                 : ((digits * (entry + 1)) >> log2FractionBits) + 1;
}

std::int64_t bitsToDigits(std::int64_t bits, unsigned radix, Bound bound) noexcept {
    const bool negative = bits < 0;
    const std::uint64_t magnitude =
        negative ? 0 - static_cast<std::uint64_t>(bits) : static_cast<std::uint64_t>(bits);
    // Below zero, the lower bound is the one with the larger magnitude.
    const bool up = (bound == Bound::Upper) != negative;
    std::uint64_t digits = 0;
    if (const unsigned perDigit = bitsPerDigit(radix); perDigit != 0)
        digits = (magnitude + (up ? perDigit - 1 : 0)) / perDigit;
    else
        digits = scaleByInverse(magnitude, inverseLog2Table[radix - smallestRadix]) +
                 (up && magnitude != 0 ? 1 : 0);
    return negative ? -static_cast<std::int64_t>(digits) : static_cast<std::int64_t>(digits);
}

std::uint8_t digitValue(char c) noexcept {
    if (ascii::isDigit(c))
        return static_cast<std::uint8_t>(c - '0');
    const char lower = ascii::toLower(c);
    if (ascii::isLower(lower))
        return static_cast<std::uint8_t>(lower - 'a' + 10);
    return 255;
}

Natural digitsToNatural(std::span<const std::uint8_t> digits, unsigned radix) {
    if (const unsigned bits = bitsPerDigit(radix); bits != 0)
        return packDigits(digits, bits);
    if (digits.size() <= simpleLimbs * digitsPerLimb(radix))
        return digitsToNaturalSimply(digits, radix);
    const unsigned level = splitLevel(digits.size(), radix);
    const std::size_t low = std::size_t{digitsPerLimb(radix)} << level;
    const Natural highPart = digitsToNatural(digits.first(digits.size() - low), radix);
    const Natural lowPart = digitsToNatural(digits.last(low), radix);
    return join(highPart, BigContext::instance().power(radix, level), lowPart);
}

void appendDigits(std::string& out, Natural value, unsigned radix) {
    if (value.length == 0)
        return;
    if (const unsigned bits = bitsPerDigit(radix); bits != 0)
        return appendPacked(out, value, bits);
    const std::size_t start = out.size();
    appendReversed(out, std::move(value), radix, 0);
    std::reverse(out.begin() + static_cast<std::ptrdiff_t>(start), out.end());
}

} // namespace specloom::number
