#include "number/number.h"

#include "foundation/hash.h"
#include "foundation/unreachable.h"
#include "number/formatter.h"

#include <cmath>     // std::ceil, std::fabs, std::floor, std::fmod, std::isfinite, std::isinf, std::isnan
#include <stdexcept> // std::runtime_error

namespace specloom::number {
namespace {

constexpr std::uint64_t hashOffset = 0x9e3779b9;

template <typename T>
int order(T a, T b) noexcept {
    // Asked in this order, a float that is not-a-number equals nothing.
    return a == b ? 0 : a < b ? -1 : 1;
}

/// `value` cut to an integer, as its 64 bits; values from 2^63 up to 2^64 as unsigned ones. Beyond both
/// ranges there is no integer to be had, so that all of those share a value on each side.
std::uint64_t truncatedBits(double value) noexcept {
    constexpr double twoTo63 = 9223372036854775808.0;
    constexpr double twoTo64 = 18446744073709551616.0;
    if (value >= -twoTo63 && value < twoTo63)
        return static_cast<std::uint64_t>(static_cast<std::int64_t>(value));
    if (value >= twoTo63 && value < twoTo64)
        return static_cast<std::uint64_t>(value);
    return value > 0 ? 0 : std::uint64_t{1} << 63;
}

std::uint64_t hashBig(const BigFloat& value) noexcept {
    const auto fnv = [](std::uint32_t word) { return fnv1a(std::uint64_t{word}, 4); };
    std::uint64_t hash = combine(0, fnv(value.sign()));
    hash = combine(hash, fnv(static_cast<std::uint32_t>(value.exponent())));
    hash = combine(hash, fnv(static_cast<std::uint32_t>(value.limbs().size())));
    for (const Limb limb : value.limbs())
        hash = combine(hash, fnv(limb));
    return hash;
}

/// The order of the other side: 2, which stands for no order at all, stays.
int reversed(int order) noexcept {
    return order == 2 ? 2 : -order;
}

} // namespace

Number::Number(BigFloat value)
    : kind_(NumberKind::Big), content_(std::make_unique<BigFloat>(std::move(value))) {}

void Number::copyBig(const Number& other) {
    std::construct_at(&content_.big, std::make_unique<BigFloat>(*other.content_.big));
}

void Number::takeBig(Number& other) noexcept {
    std::construct_at(&content_.big, std::move(other.content_.big));
    std::destroy_at(&other.content_.big);
    other.kind_ = NumberKind::Signed;
    other.content_.bits = 0;
}

Number& Number::operator=(const Number& other) {
    if (this != &other)
        *this = Number(other);
    return *this;
}

BigFloat Number::toBig() const {
    BigFloat result;
    Status status = 0;
    switch (kind_) {
    case NumberKind::Signed:
        status = result.setInt(signedValue());
        break;
    case NumberKind::Unsigned:
        status = result.setUInt(unsignedValue());
        break;
    case NumberKind::Float:
        status = result.setDouble(floatValue());
        break;
    case NumberKind::Big:
        status = result.copy(bigValue());
        break;
    default:
        SPECLOOM_UNREACHABLE("unknown kind of number");
    }
    // The value is not-a-number after a failure, which is what arithmetic goes on with.
    static_cast<void>(status);
    return result;
}

double Number::machineToDouble() const noexcept {
    switch (kind_) {
    case NumberKind::Signed:
        return static_cast<double>(signedValue());
    case NumberKind::Unsigned:
        return static_cast<double>(unsignedValue());
    case NumberKind::Float:
        return floatValue();
    case NumberKind::Big:
        break;
    }
    SPECLOOM_UNREACHABLE("no machine number");
}

Number& Number::operator-=(const Number& other) {
    if (kind_ == NumberKind::Big || other.kind_ == NumberKind::Big) {
        BigFloat difference;
        // Rounding to 1000 bits is silent, and a lack of memory shows as not-a-number.
        static_cast<void>(BigFloat::sub(difference, toBig(), other.toBig(), bigPrecision, roundNearestEven));
        return *this = Number(std::move(difference));
    }
    if (kind_ == NumberKind::Float || other.kind_ == NumberKind::Float)
        return *this = machineToDouble() - other.machineToDouble();
    content_.bits -= other.content_.bits;
    return *this;
}

int Number::compare(const Number& other) const {
    switch (other.kind_) {
    case NumberKind::Signed:
        return compare(other.signedValue());
    case NumberKind::Unsigned:
        return compare(other.unsignedValue());
    case NumberKind::Float:
        return compare(other.floatValue());
    case NumberKind::Big:
        return kind_ == NumberKind::Big ? BigFloat::compareFull(bigValue(), other.bigValue())
                                        : reversed(other.compare(*this));
    }
    SPECLOOM_UNREACHABLE("unknown kind of number");
}

int Number::compare(double other) const {
    if (kind_ == NumberKind::Big)
        return BigFloat::compareFull(bigValue(), Number(other).toBig());
    return order(machineToDouble(), other);
}

int Number::compare(std::int64_t other) const {
    switch (kind_) {
    case NumberKind::Signed:
        return order(signedValue(), other);
    case NumberKind::Unsigned:
        return other < 0 ? 1 : order(unsignedValue(), static_cast<std::uint64_t>(other));
    case NumberKind::Float:
        return order(floatValue(), static_cast<double>(other));
    case NumberKind::Big:
        return BigFloat::compareFull(bigValue(), Number(other).toBig());
    }
    SPECLOOM_UNREACHABLE("unknown kind of number");
}

int Number::compare(std::uint64_t other) const {
    switch (kind_) {
    case NumberKind::Signed:
        return signedValue() < 0 ? -1 : order(static_cast<std::uint64_t>(signedValue()), other);
    case NumberKind::Unsigned:
        return order(unsignedValue(), other);
    case NumberKind::Float:
        return order(floatValue(), static_cast<double>(other));
    case NumberKind::Big:
        return BigFloat::compareFull(bigValue(), Number(other).toBig());
    }
    SPECLOOM_UNREACHABLE("unknown kind of number");
}

std::uint64_t Number::hash() const {
    switch (kind_) {
    case NumberKind::Signed:
    case NumberKind::Unsigned:
        return content_.bits + hashOffset;
    case NumberKind::Float:
        return truncatedBits(floatValue()) + hashOffset;
    case NumberKind::Big:
        return hashBig(bigValue());
    }
    SPECLOOM_UNREACHABLE("unknown kind of number");
}

bool Number::isInteger() const {
    switch (kind_) {
    case NumberKind::Signed:
    case NumberKind::Unsigned:
        return true;
    case NumberKind::Float:
        return std::isfinite(floatValue()) && std::ceil(floatValue()) == std::floor(floatValue());
    case NumberKind::Big:
        return toString(100).find('.') == std::string::npos;
    }
    SPECLOOM_UNREACHABLE("unknown kind of number");
}

bool Number::isNaN() const {
    if (kind_ == NumberKind::Big)
        SPECLOOM_UNREACHABLE("isNaN of a big number");
    return kind_ == NumberKind::Float && std::isnan(floatValue());
}

bool Number::isInfinite() const {
    if (kind_ == NumberKind::Big)
        SPECLOOM_UNREACHABLE("isInfinite of a big number");
    return kind_ == NumberKind::Float && std::isinf(floatValue());
}

bool Number::isMultipleOf(const Number& divisor) const {
    if (kind_ == NumberKind::Big || divisor.kind_ == NumberKind::Big)
        SPECLOOM_UNREACHABLE("isMultipleOf of a big number");
    if (isIntegerKind() && divisor.isIntegerKind()) {
        if (kind_ == NumberKind::Unsigned || divisor.kind_ == NumberKind::Unsigned)
            return unsignedValue() % divisor.unsignedValue() == 0;
        // The smallest integer by -1 is a fault of the machine although the remainder is plain.
        return divisor.signedValue() == -1 || signedValue() % divisor.signedValue() == 0;
    }
    const double quotient = machineToDouble() / divisor.machineToDouble();
    return std::fabs(std::fmod(quotient, 1.0)) < 2.220446049250313e-16;
}

double Number::toDouble() const {
    if (kind_ == NumberKind::Big)
        SPECLOOM_UNREACHABLE("toDouble of a big number");
    return machineToDouble();
}

std::int64_t Number::toLong() const {
    return static_cast<std::int64_t>(toULong());
}

std::uint64_t Number::toULong() const {
    if (kind_ == NumberKind::Big)
        SPECLOOM_UNREACHABLE("toLong of a big number");
    if (kind_ == NumberKind::Float)
        throw std::runtime_error("Cannot cast double to long");
    return content_.bits;
}

std::string Number::toString(unsigned precision) const {
    std::string text;
    appendTo(text, precision);
    return text;
}

void Number::appendTo(std::string& out, unsigned precision) const {
    NumberFormatter{this, precision}.format(out);
}

} // namespace specloom::number
