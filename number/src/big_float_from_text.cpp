#include "number/big_float_math.h"
#include "number/radix.h"

#include <algorithm> // std::min
#include <limits>    // std::numeric_limits
#include <vector>    // std::vector

namespace specloom::number {
namespace {

/// Beyond this no exponent of a text can be told from infinity.
constexpr std::int64_t exponentLimit = std::int64_t{1} << 40;

/// Whether `text` starts with `word`, which is in lower case, in any case.
bool startsWithWord(std::string_view text, std::string_view word) {
    return text.size() >= word.size() &&
           std::equal(word.begin(), word.end(), text.begin(), [](char w, char t) { return w == (t | 0x20); });
}

/// What a text says: digits * radix^scale * 2^binaryScale.
struct TextNumber {
    bool valid = false;
    bool nan = false;
    bool infinite = false;
    std::uint32_t sign = 0;
    unsigned radix = 10;
    std::int64_t scale = 0;
    std::int64_t binaryScale = 0;
    /// Most significant first, without zeros at either end.
    std::vector<std::uint8_t> digits;
};

/// Takes a text apart from its start on.
class TextReader {
  public:
    TextReader(std::string_view text, unsigned radix, Flags flags) : text_(text), flags_(flags) {
        number_.radix = radix;
    }

    TextNumber read() {
        const bool specials = (flags_ & noSpecials) == 0 && number_.radix <= 16;
        if (specials && startsWithWord(text_, "nan")) {
            at_ = 3;
            number_.valid = number_.nan = true;
            return std::move(number_);
        }
        readSign();
        if (specials && startsWithWord(text_.substr(at_), "inf")) {
            at_ += startsWithWord(text_.substr(at_), "infinity") ? 8 : 3;
            number_.valid = number_.infinite = true;
            return std::move(number_);
        }
        readPrefix();
        if (number_.radix == 0)
            number_.radix = 10;
        readDigits();
        if (number_.valid)
            readExponent();
        return std::move(number_);
    }

    /// How many bytes have been read.
    [[nodiscard]] std::size_t consumed() const { return at_; }

  private:
    void readSign() {
        if (at_ < text_.size() && (text_[at_] == '-' || text_[at_] == '+'))
            number_.sign = text_[at_++] == '-' ? 1 : 0;
    }

    void readPrefix() {
        if (text_.size() < at_ + 2 || text_[at_] != '0')
            return;
        const char letter = static_cast<char>(text_[at_ + 1] | 0x20);
        const unsigned radix = number_.radix;
        const bool others = radix == 0 && (flags_ & binaryAndOctalPrefixes) != 0;
        if (letter == 'x' && (radix == 0 || radix == 16) && (flags_ & noHexPrefix) == 0)
            number_.radix = 16;
        else if (letter == 'o' && others)
            number_.radix = 8;
        else if (letter == 'b' && others)
            number_.radix = 2;
        else
            return;
        at_ += 2;
        prefixed_ = true;
    }

    [[nodiscard]] bool digitAt(std::size_t place) const {
        return place < text_.size() && digitValue(text_[place]) < number_.radix;
    }

    void readDigits() {
        if (prefixed_ && !digitAt(at_))
            return;
        bool point = false;
        std::int64_t behindPoint = 0;
        std::size_t zeros = 0;
        for (; at_ < text_.size(); ++at_) {
            if (text_[at_] == '.' && !point) {
                point = true;
                continue;
            }
            const std::uint8_t digit = digitValue(text_[at_]);
            if (digit >= number_.radix)
                break;
            number_.valid = true;
            behindPoint += point ? 1 : 0;
            if (digit == 0) {
                // Kept back: zeros count only when another digit follows, and not in front.
                ++zeros;
                continue;
            }
            if (!number_.digits.empty())
                number_.digits.insert(number_.digits.end(), zeros, 0);
            zeros = 0;
            number_.digits.push_back(digit);
        }
        number_.scale = static_cast<std::int64_t>(zeros) - behindPoint;
    }

    void readExponent() {
        if (at_ >= text_.size())
            return;
        const char marker = static_cast<char>(text_[at_] | 0x20);
        const unsigned bits = bitsPerDigit(number_.radix);
        const bool binary = marker == 'p' && bits != 0 && number_.radix <= 16;
        if (!binary && text_[at_] != '@' && !(marker == 'e' && number_.radix <= 10))
            return;
        std::size_t place = at_ + 1;
        bool negative = false;
        if (place < text_.size() && (text_[place] == '-' || text_[place] == '+'))
            negative = text_[place++] == '-';
        if (place >= text_.size() || digitValue(text_[place]) > 9)
            return;
        std::int64_t exponent = 0;
        for (; place < text_.size() && digitValue(text_[place]) <= 9; ++place)
            exponent = std::min(exponent * 10 + digitValue(text_[place]), exponentLimit);
        at_ = place;
        (binary ? number_.binaryScale : number_.scale) += negative ? -exponent : exponent;
    }

    std::string_view text_;
    Flags flags_;
    std::size_t at_ = 0;
    bool prefixed_ = false;
    TextNumber number_;
};

/// Overflow or underflow, as `exponent` has it.
Status outOfRange(BigFloat& r, std::uint32_t sign, std::int64_t exponent, Precision prec, Flags flags) {
    Natural one(1);
    one.limbs[0] = 1;
    one.length = 1;
    return BigFloatMath::fromNatural(r, sign, std::move(one), exponent, prec, flags);
}

/// `natural` * radix^scale.
Status convert(BigFloat& r, const TextNumber& number, Natural natural, std::int64_t scale, Precision prec,
               Flags flags) {
    BigFloat digits;
    BigFloatMath::fromNatural(digits, number.sign, std::move(natural), 0, exactPrecision, extendedExponents);
    return BigFloatMath::mulPowRadix(r, digits, number.radix, scale, 0, prec, flags);
}

/// Tries to round by the first `count` digits alone. They bound the value on both sides, and when both bounds
/// agree in a few bits more than are needed, then so does the value, and it has something behind these bits.
bool convertPrefix(BigFloat& r, Status& status, const TextNumber& number, std::size_t count, Precision prec,
                   Flags flags) {
    const std::span<const std::uint8_t> prefix(number.digits.data(), count);
    const std::int64_t scale = number.scale + static_cast<std::int64_t>(number.digits.size() - count);
    const Precision wide = prec + 2;
    const Flags cut = roundTowardZero | extendedExponents;
    BigFloat low;
    convert(low, number, digitsToNatural(prefix, number.radix), scale, wide, cut);
    Natural next = digitsToNatural(prefix, number.radix);
    next.limbs.resize(next.length + 1);
    next.limbs[next.length] = 0;
    const Limb one = 1;
    addInPlace(next.limbs.data(), next.length + 1, &one, 1);
    next.trim(next.length + 1);
    BigFloat high;
    convert(high, number, std::move(next), scale, wide, cut);
    if (BigFloat::compareFull(low, high) != 0)
        return false;

    const std::span<const Limb> limbs = low.limbs();
    Natural sticky((wide + limbBits - 1) / limbBits + 1);
    sticky.length = (wide + limbBits - 1) / limbBits + 1;
    std::fill_n(sticky.limbs.data(), sticky.length, 0);
    std::copy(limbs.begin(), limbs.end(), sticky.limbs.data() + sticky.length - limbs.size());
    sticky.limbs[0] = 1;
    const std::int64_t shift = low.exponent() - static_cast<std::int64_t>(sticky.length) * limbBits;
    status = BigFloatMath::fromNatural(r, number.sign, std::move(sticky), shift, prec, flags);
    return true;
}

/// More digits than a number of `prec` + 1 bits with its leading digit `places` from the point can have: what
/// lies behind them matters only as being there. In an odd radix a half has no end, so that there is no such
/// count.
std::uint64_t mostDigits(unsigned radix, Precision prec, std::uint64_t places) {
    if (radix % 2 != 0)
        return std::numeric_limits<std::uint64_t>::max();
    return std::uint64_t{prec} + 8 + 3 * places;
}

/// Long digit strings are cut to what can make a difference, so that the time does not grow with their
/// square.
Status convertDigits(BigFloat& r, TextNumber number, Precision prec, Flags flags) {
    const auto size = static_cast<std::int64_t>(number.digits.size());
    // The value is below radix^position and not below a radix-th of it, so that its exponent is about this
    // many bits from zero.
    const std::int64_t position = size + number.scale;
    const auto places = static_cast<std::uint64_t>(position < 0 ? -position : position);
    constexpr std::uint64_t farthest = std::uint64_t{1} << 32;
    constexpr std::uint64_t rangeBits = std::uint64_t{1} << 31;
    if (places > farthest || digitsToBits(places, number.radix, Bound::Lower) > rangeBits + 64)
        return outOfRange(r, number.sign, position > 0 ? exponentLimit : -exponentLimit, prec, flags);
    if (prec == exactPrecision)
        return convert(r, number, digitsToNatural(number.digits, number.radix), number.scale, prec, flags);

    const std::uint64_t enough =
        std::min<std::uint64_t>(number.digits.size(), mostDigits(number.radix, prec, places));
    // At the very end of all exponents the bounds could be rounded by the range and not by the precision.
    if (digitsToBits(places, number.radix, Bound::Upper) + prec + 64 < rangeBits) {
        Status status = 0;
        auto count = static_cast<std::size_t>(bitsToDigits(prec, number.radix, Bound::Upper)) + 20;
        for (; count < enough; count *= 4)
            if (convertPrefix(r, status, number, count, prec, flags))
                return status;
    }
    if (enough < number.digits.size()) {
        number.scale += size - static_cast<std::int64_t>(enough) - 1;
        number.digits.resize(static_cast<std::size_t>(enough));
        number.digits.push_back(1);
    }
    return convert(r, number, digitsToNatural(number.digits, number.radix), number.scale, prec, flags);
}

Status convertText(BigFloat& r, TextNumber number, Precision prec, Flags flags) {
    if (!number.valid || number.nan) {
        r.setNaN();
        return 0;
    }
    if (number.infinite) {
        r.setInf(number.sign);
        return 0;
    }
    if (number.digits.empty()) {
        r.setZero(number.sign);
        return 0;
    }
    const unsigned bits = bitsPerDigit(number.radix);
    if (bits == 0)
        return convertDigits(r, std::move(number), prec, flags);
    return BigFloatMath::fromNatural(r, number.sign, digitsToNatural(number.digits, number.radix),
                                     number.scale * bits + number.binaryScale, prec, flags);
}

} // namespace

Status BigFloat::fromText(BigFloat& r, std::string_view text, std::size_t* consumed, unsigned radix,
                          Precision prec, Flags flags) noexcept {
    return BigFloatMath::guarded(r, [&] {
        TextReader reader(text, radix, flags);
        TextNumber number = reader.read();
        if (consumed != nullptr)
            *consumed = number.valid ? reader.consumed() : 0;
        return convertText(r, std::move(number), prec, flags);
    });
}

} // namespace specloom::number
