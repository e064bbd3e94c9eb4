#include "jv_generator/parts.h"
#include "number/exact_numbers.h"

#include <algorithm> // std::clamp, std::max, std::min, std::ranges::find
#include <cmath>     // std::fabs, std::floor

namespace specloom::jv_generator {

namespace {

constexpr int usualDecimals = 2; ///< of numbers that may have any
constexpr int mostScale = 30;
constexpr Integer fewValues = 10; ///< a range that has less of them gets more decimals
constexpr int drawsOfNumber = 200;

/// Whether a quotient of floats is an integer: consumers that divide have to find it so too.
[[nodiscard]] bool dividesAsFloat(const number::Number& value, const number::Number& divisor) {
    const double quotient = value.toDouble() / divisor.toDouble();
    return quotient == std::floor(quotient) && std::fabs(quotient) < 1e21;
}

[[nodiscard]] int leadingZeros(const number::Number& value) {
    return std::max(0, decimalsOf(value) - usualDecimals);
}

} // namespace

NumberPart::NumberPart(SchemaGraph& graph, MergedSchema schema, const GeneratorConfig& config)
    : graph_(&graph), schema_(std::move(schema)) {
    if (schema_.kinds == value_kind::number && (hasFormat("int32") || hasFormat("int64")))
        schema_.kinds = value_kind::integer;
    // The range is made of multiples, so divisors need no look where nothing is rounded.
    isPlain_ = schema_.nonDivisors.empty() && schema_.excluded.empty();
    setStep();
    setRange(config);
    // Between 0.001 and 0.002 nothing has two decimals.
    const bool mayHaveDecimals = schema_.divisors.empty() && (schema_.kinds & value_kind::fraction) != 0;
    while (mayHaveDecimals && !hasOpenEnd() && most_ - least_ < fewValues && scale_ < mostScale - 10 &&
           !(least_ == most_ && schema_.lower.size() + schema_.upper.size() == 2 &&
             isFine(numberOf(least_, scale_)))) {
        ++scale_;
        setRange(config);
    }
    isSimple_ = isPlain_ && scale_ == 0 && step_ == 1 && schema_.divisors.empty() && least_ <= most_ &&
                (schema_.kinds & value_kind::integer) != 0 && least_ >= INT64_MIN && most_ <= INT64_MAX;
}

bool NumberPart::hasFormat(std::string_view name) const {
    return std::ranges::find(schema_.formats, name) != schema_.formats.end();
}

/// The range of 32 bits holds where that leaves anything.
void NumberPart::keepToFormat() {
    if (!hasFormat("int32"))
        return;
    const Integer least = std::max(least_, dividedUp(Integer{INT32_MIN} * powerOfTen(scale_), step_));
    const Integer most = std::min(most_, dividedDown(Integer{INT32_MAX} * powerOfTen(scale_), step_));
    if (least > most)
        return;
    least_ = least;
    most_ = most;
}

void NumberPart::setStep() {
    const bool isInteger = (schema_.kinds & value_kind::fraction) == 0;
    if (schema_.divisors.empty()) {
        scale_ = isInteger ? 0 : usualDecimals;
        for (const Limit& limit : schema_.lower)
            scale_ =
                isInteger ? 0 : std::max(scale_, std::min(leadingZeros(limit.value) + usualDecimals, 17));
        return;
    }
    for (const number::Number& divisor : schema_.divisors)
        scale_ = std::max(scale_, decimalsOf(divisor));
    step_ = isInteger ? powerOfTen(scale_) : 1;
    for (const number::Number& divisor : schema_.divisors)
        step_ = commonMultiple(step_, std::max<Integer>(scaledDown(divisor, scale_), 1));
}

void NumberPart::setRange(const GeneratorConfig& config) {
    isOpenBelow_ = schema_.lower.empty();
    isOpenAbove_ = schema_.upper.empty();
    const Integer configured = dividedUp(scaledUp(config.minimum(), scale_), step_);
    const Integer configuredMost = dividedDown(scaledDown(config.maximum(), scale_), step_);
    width_ = std::max<Integer>(configuredMost - configured, 0);
    least_ = isOpenBelow_ ? configured : -vast;
    most_ = isOpenAbove_ ? configuredMost : vast;
    for (const Limit& limit : schema_.lower) {
        const Integer up = scaledUp(limit.value, scale_);
        const bool isMet = limit.isExclusive && up == scaledDown(limit.value, scale_);
        least_ = std::max(least_, dividedUp(up + (isMet ? 1 : 0), step_));
    }
    for (const Limit& limit : schema_.upper) {
        const Integer down = scaledDown(limit.value, scale_);
        const bool isMet = limit.isExclusive && down == scaledUp(limit.value, scale_);
        most_ = std::min(most_, dividedDown(down - (isMet ? 1 : 0), step_));
    }
    // An end beyond the range of the configuration moves the other one.
    if (isOpenAbove_ && (most_ < least_ || !isOpenBelow_))
        most_ = std::max(most_, least_ > most_ ? least_ + width_ : most_);
    if (isOpenBelow_ && least_ > most_)
        least_ = isOpenAbove_ ? most_ : most_ - width_;
    keepToFormat();
}

Integer NumberPart::draw(Context& context) const {
    const Integer wider =
        context.spread() == 0 ? 0 : (width_ + 1) << std::min<std::uint32_t>(context.spread(), 60);
    const Integer least = isOpenBelow_ ? std::max(least_ - wider, -vast) : least_;
    const Integer most = isOpenAbove_ ? std::min(most_ + wider, vast) : most_;
    const Integer span = most - least;
    if (span <= Integer{UINT64_MAX})
        return least + Integer{context.random().between(0, static_cast<std::uint64_t>(span))};
    // Beyond 64 bits the low ones do not matter.
    return least + span / Integer{UINT64_MAX} * Integer{context.random().between(0, UINT64_MAX)};
}

bool NumberPart::isFine(const number::Number& value) const {
    return schema_.admitsNumber(value);
}

/// Whether a number of the range may break something nevertheless: not all that has decimals is as exact as
/// the range.
bool NumberPart::needsLook(const number::Number& value) const {
    if (!isPlain_)
        return true;
    const bool isFloat = value.kind() == number::NumberKind::Float;
    return isFloat ? schema_.kinds != value_kind::number || !schema_.divisors.empty() ||
                         !schema_.lower.empty() || !schema_.upper.empty()
                   : (schema_.kinds & value_kind::integer) == 0;
}

bool NumberPart::generate(Context& context, jv::TreeBuilder& out) {
    if (isSimple_ && context.spread() == 0) {
        const auto least = static_cast<std::uint64_t>(least_);
        const std::uint64_t drawn = context.random().between(0, static_cast<std::uint64_t>(most_) - least);
        out.addNumber(static_cast<std::int64_t>(least + drawn), {});
        return true;
    }
    if (least_ > most_)
        return context.fail(schema_.place, "there is no number in its range");
    for (int attempt = 0; attempt < drawsOfNumber; ++attempt) {
        const Integer steps = attempt == drawsOfNumber - 2   ? least_
                              : attempt == drawsOfNumber - 1 ? most_
                                                             : draw(context);
        const number::Number value = numberOf(steps * step_, scale_);
        const bool isLast = attempt > drawsOfNumber / 2;
        const auto divides = [&](const number::Number& divisor) {
            return isLast || dividesAsFloat(value, divisor);
        };
        if (std::ranges::all_of(schema_.divisors, divides) && (!needsLook(value) || isFine(value))) {
            out.addNumber(value, {});
            return true;
        }
    }
    return context.fail(schema_.place, "no number was found that fits all it says of numbers");
}

} // namespace specloom::jv_generator
