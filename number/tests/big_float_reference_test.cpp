// The engine against an independent implementation of correctly rounded arithmetic, over random operands that
// are the same on every run.

#include "mpfr_value.h"
#include "random_operands.h"

#include <algorithm>  // std::max, std::min
#include <bit>        // std::bit_cast
#include <functional> // std::function

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

/// The exponents of the reference reach further than ours, so that its values can hold whatever the engine
/// has.
class BigFloatReference : public testing::Test {
  protected:
    BigFloatReference() { setRange(mpfr_get_emin_min(), mpfr_get_emax_max()); }

    static void setRange(mpfr_exp_t low, mpfr_exp_t high) {
        mpfr_set_emin(low);
        mpfr_set_emax(high);
    }
};

constexpr Flags allModes = 7;

/// Computes into the first argument, rounding as the second says; returns the sign of the error.
using Reference = std::function<int(mpfr_ptr, mpfr_rnd_t)>;

mpfr_rnd_t referenceMode(Flags mode) {
    constexpr mpfr_rnd_t modes[] = {MPFR_RNDN, MPFR_RNDZ, MPFR_RNDD, MPFR_RNDU,
                                    MPFR_RNDN, MPFR_RNDA, MPFR_RNDN};
    return modes[mode];
}

/// To nearest with ties away, which the reference does not have: a tie is what one more bit holds exactly.
int nearestAway(MpfrValue& result, const Reference& reference) {
    MpfrValue wider(mpfr_get_prec(result.get()) + 1);
    if (reference(wider.get(), MPFR_RNDZ) == 0)
        return mpfr_set(result.get(), wider.get(), MPFR_RNDA);
    return reference(result.get(), MPFR_RNDN);
}

/// Holds a result of the engine against the reference: value, sign and whether it is exact.
void expectRounded(const BigFloat& result, Status status, Precision prec, Flags mode,
                   const Reference& reference) {
    MpfrValue expected(static_cast<mpfr_prec_t>(prec));
    if (mode == roundFaithful) {
        MpfrValue above(static_cast<mpfr_prec_t>(prec));
        const int error = reference(expected.get(), MPFR_RNDD);
        reference(above.get(), MPFR_RNDU);
        EXPECT_TRUE(expected.same(result) || above.same(result)) << expected.text() << " to " << above.text();
        EXPECT_EQ((status & statusInexact) != 0, error != 0);
        return;
    }
    const int error = mode == roundNearestAway ? nearestAway(expected, reference)
                                               : reference(expected.get(), referenceMode(mode));
    EXPECT_TRUE(expected.same(result)) << describe(result) << " and not " << expected.text();
    EXPECT_EQ((status & statusInexact) != 0, error != 0);
}

using Operation = Status (*)(BigFloat&, const BigFloat&, const BigFloat&, Precision, Flags) noexcept;
using ReferenceOperation = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

struct Arithmetic {
    const char* name;
    Operation operation;
    ReferenceOperation reference;
};

constexpr Arithmetic arithmetic[] = {
    {"add", BigFloat::add, mpfr_add},
    {"sub", BigFloat::sub, mpfr_sub},
    {"mul", BigFloat::mul, mpfr_mul},
    {"div", BigFloat::div, mpfr_div},
};

/// The second operand in a relation to the first that makes trouble more likely than chance does.
BigFloat partner(RandomOperands& random, const BigFloat& a, Precision prec) {
    switch (random.between(0, 4)) {
    case 0: {
        // Nearly the same value: most of the leading bits cancel out.
        BigFloat b;
        BigFloat::round(b = a, static_cast<Precision>(random.between(1, 1000)), roundTowardZero);
        if (random.oneIn(2))
            b.setSign(b.sign() ^ 1);
        return b;
    }
    case 1:
        // Ends or starts around the last bit of the result.
        return random.value(200, a.exponent() - std::int64_t{prec} + random.between(-70, 70));
    case 2: {
        // Less than a by something small, and often with an exponent lower by one all the same.
        BigFloat b;
        BigFloat::sub(b, a, random.value(600, a.exponent() - random.between(0, 1500)), exactPrecision,
                      roundNearestEven);
        return b;
    }
    case 3:
        return random.value(64, random.between(-1, 1) + a.exponent());
    default:
        return random.value();
    }
}

TEST_F(BigFloatReference, arithmetic) {
    RandomOperands random(1);
    for (int i = 0; i < 24000; ++i) {
        const Arithmetic& op = arithmetic[i % 4];
        const Precision prec = random.precision();
        const auto mode = static_cast<Flags>(random.between(0, allModes - 1));
        BigFloat a = random.oneIn(4) ? random.value(4, random.between(-100, 100)) : random.value();
        BigFloat b = partner(random, a, prec);
        SCOPED_TRACE(testing::Message() << op.name << " " << describe(a) << " " << describe(b) << " prec "
                                        << prec << " mode " << mode);
        const MpfrValue left(a);
        const MpfrValue right(b);
        // The result may go where an operand is.
        BigFloat separate;
        BigFloat& r = random.oneIn(3) ? a : random.oneIn(2) ? b : separate;
        const Status status = op.operation(r, a, b, prec, mode);
        expectRounded(r, status, prec, mode, [&](mpfr_ptr out, mpfr_rnd_t rounding) {
            return op.reference(out, left.get(), right.get(), rounding);
        });
        if (HasFailure())
            return;
    }
}

TEST_F(BigFloatReference, exactSumsAndProducts) {
    RandomOperands random(2);
    for (int i = 0; i < 6000; ++i) {
        const Arithmetic& op = arithmetic[i % 3];
        const BigFloat a = random.value(1000, random.between(-3000, 3000));
        const BigFloat b =
            random.oneIn(2) ? partner(random, a, 100) : random.value(1000, random.between(-3000, 3000));
        SCOPED_TRACE(testing::Message() << op.name << " " << describe(a) << " " << describe(b));
        MpfrValue expected(120000);
        ASSERT_EQ(op.reference(expected.get(), MpfrValue(a).get(), MpfrValue(b).get(), MPFR_RNDN), 0);
        BigFloat r;
        ASSERT_EQ(op.operation(r, a, b, exactPrecision, roundNearestEven), 0U);
        ASSERT_TRUE(expected.same(r));
    }
}

// Near the ends of the exponents the results overflow and underflow by the mode.
TEST_F(BigFloatReference, endsOfTheRange) {
    constexpr mpfr_exp_t reach = 1 << 30;
    RandomOperands random(3);
    for (int i = 0; i < 6000; ++i) {
        const Arithmetic& op = arithmetic[i % 4];
        const Precision prec = random.precision();
        const auto mode = static_cast<Flags>(random.between(0, allModes - 2));
        // The operands themselves stay inside, as the reference demands.
        const std::int64_t end =
            random.oneIn(2) ? reach - random.between(0, 3) : -reach + random.between(4, 7);
        const BigFloat a = random.value(random.oneIn(2) ? 4 : 100, op.reference == mpfr_mul ? end / 2 : end);
        const BigFloat b =
            random.value(random.oneIn(2) ? 4 : 100, op.reference == mpfr_mul   ? end - end / 2
                                                    : op.reference == mpfr_div ? random.between(-2, 3)
                                                                               : end);
        SCOPED_TRACE(testing::Message() << op.name << " " << describe(a) << " " << describe(b) << " prec "
                                        << prec << " mode " << mode);
        const MpfrValue left(a);
        const MpfrValue right(b);
        BigFloat r;
        const Status status = op.operation(r, a, b, prec, mode);
        // Ties away is only looked at inside of the range: the reference is made of two roundings.
        if (mode == roundNearestAway && (status & (statusOverflow | statusUnderflow)) != 0)
            continue;
        setRange(-reach, reach);
        expectRounded(r, status, prec, mode, [&](mpfr_ptr out, mpfr_rnd_t rounding) {
            return op.reference(out, left.get(), right.get(), rounding);
        });
        setRange(mpfr_get_emin_min(), mpfr_get_emax_max());
        if (HasFailure())
            return;
    }
}

TEST_F(BigFloatReference, comparison) {
    RandomOperands random(4);
    const auto order = [](int comparison) { return comparison < 0 ? -1 : comparison > 0 ? 1 : 0; };
    for (int i = 0; i < 4000; ++i) {
        const BigFloat a = random.value();
        const BigFloat b = random.oneIn(4) ? a : partner(random, a, 64);
        const MpfrValue left(a);
        const MpfrValue right(b);
        SCOPED_TRACE(testing::Message() << describe(a) << " " << describe(b));
        ASSERT_EQ(BigFloat::compareFull(a, b), order(mpfr_cmp(left.get(), right.get())));
        ASSERT_EQ(BigFloat::compareMagnitude(a, b), order(mpfr_cmpabs(left.get(), right.get())));
    }
}

TEST_F(BigFloatReference, doubles) {
    RandomOperands random(5);
    for (int i = 0; i < 4000; ++i) {
        std::uint64_t bits = random.bits();
        if (random.oneIn(4))
            bits &= 0x800fffffffffffff; // a denormal
        const auto value = std::bit_cast<double>(bits);
        MpfrValue expected(53);
        mpfr_set_d(expected.get(), value, MPFR_RNDN);
        BigFloat r;
        ASSERT_EQ(r.setDouble(value), 0U);
        ASSERT_TRUE(expected.same(r)) << value;
    }
}

/// Computes a * radix^exponent through the exact power.
int referenceScaled(mpfr_ptr out, mpfr_srcptr a, unsigned radix, std::int64_t exponent, mpfr_rnd_t rounding) {
    mpz_t power;
    mpz_init(power);
    mpz_ui_pow_ui(power, radix, static_cast<unsigned long>(exponent < 0 ? -exponent : exponent));
    const int error =
        exponent < 0 ? mpfr_div_z(out, a, power, rounding) : mpfr_mul_z(out, a, power, rounding);
    mpz_clear(power);
    return error;
}

TEST_F(BigFloatReference, scaledByPowersOfTheRadix) {
    RandomOperands random(6);
    for (int i = 0; i < 4000; ++i) {
        const auto radix = static_cast<unsigned>(random.oneIn(2) ? 10 : random.between(2, 36));
        const std::int64_t reach = random.oneIn(2) ? 30 : random.oneIn(4) ? 6000 : 700;
        const std::int64_t exponent = random.between(-reach, reach);
        const Precision prec = random.precision();
        const auto mode = static_cast<Flags>(random.between(0, allModes - 1));
        BigFloat a = random.value();
        if (random.oneIn(3))
            // Something that the power divides, so that the quotient ends.
            BigFloat::mulPowRadix(a, random.value(60, 0), radix, random.between(0, 400), 1000,
                                  roundNearestEven);
        SCOPED_TRACE(testing::Message() << describe(a) << " * " << radix << "^" << exponent << " prec "
                                        << prec << " mode " << mode);
        BigFloat r;
        const Status status = BigFloat::mulPowRadix(r, a, radix, exponent, prec, mode);
        const MpfrValue base(a);
        expectRounded(r, status, prec, mode, [&](mpfr_ptr out, mpfr_rnd_t rounding) {
            return referenceScaled(out, base.get(), radix, exponent, rounding);
        });
        if (HasFailure())
            return;
    }
}

TEST_F(BigFloatReference, integerPowers) {
    RandomOperands random(7);
    for (int i = 0; i < 2000; ++i) {
        const auto base = static_cast<std::uint32_t>(
            random.oneIn(3) ? 10 : random.between(0, random.oneIn(2) ? 12 : UINT32_MAX));
        const auto exponent = static_cast<std::uint32_t>(random.between(0, random.oneIn(2) ? 12 : 900));
        const Precision prec = random.precision() + 20;
        SCOPED_TRACE(testing::Message() << base << "^" << exponent << " prec " << prec);
        MpfrValue expected(mpfr_prec_t{32} * 1000);
        ASSERT_EQ(mpfr_ui_pow_ui(expected.get(), base, exponent, MPFR_RNDN), 0);
        BigFloat exact;
        ASSERT_EQ(BigFloat::powInt(exact, base, exponent, exactPrecision, 0), 0U);
        ASSERT_TRUE(expected.same(exact));
        BigFloat r;
        const Status status = BigFloat::powInt(r, base, exponent, prec, roundNearestEven);
        if ((status & statusInexact) == 0) {
            ASSERT_TRUE(expected.same(r));
            continue;
        }
        // |r - exact| <= 2 * exponent units of the last bit of r.
        BigFloat error;
        BigFloat::sub(error, r, exact, exactPrecision, 0);
        BigFloat bound;
        bound.setUInt(2 * std::uint64_t{exponent});
        BigFloat::mulPowRadix(bound, bound, 2, std::int64_t{r.exponent()} - std::int64_t{prec},
                              exactPrecision, 0);
        ASSERT_LE(BigFloat::compareMagnitude(error, bound), 0) << describe(r);
    }
}

TEST_F(BigFloatReference, textToValue) {
    RandomOperands random(8);
    for (int i = 0; i < 8000; ++i) {
        const auto radix = static_cast<unsigned>(random.oneIn(2) ? 10 : random.between(2, 36));
        const Precision prec = random.precision();
        const auto mode = static_cast<Flags>(random.between(0, allModes - 1));
        std::string text = random.oneIn(2) ? "-" : "";
        text += random.digits(random.oneIn(10) ? random.between(300, 3000) : random.between(1, 60), radix);
        const auto point =
            static_cast<std::size_t>(random.between(1, static_cast<std::int64_t>(text.size())));
        if (random.oneIn(2))
            text.insert(point, 1, '.');
        const std::int64_t reach = random.oneIn(2) ? 20 : random.oneIn(10) ? 20000 : 500;
        text += radix <= 10 && random.oneIn(2) ? 'e' : '@';
        text += std::to_string(random.between(-reach, reach));
        SCOPED_TRACE(testing::Message()
                     << text << " radix " << radix << " prec " << prec << " mode " << mode);
        BigFloat r;
        std::size_t consumed = 0;
        const Status status =
            BigFloat::fromText(r, text, &consumed, radix, prec, mode | noSpecials | noHexPrefix);
        // Radix 2 and 16 take "p" only in the reference, which is nothing to be tested here.
        EXPECT_EQ(consumed, text.size());
        expectRounded(r, status, prec, mode, [&](mpfr_ptr out, mpfr_rnd_t rounding) {
            return mpfr_strtofr(out, text.c_str(), nullptr, static_cast<int>(radix), rounding);
        });
        if (HasFailure())
            return;
    }
}

std::string decimalText(const MpfrValue& value) {
    char* chars = nullptr;
    // More digits than a value of these sizes has; the zeros at the end come off.
    mpfr_asprintf(&chars, "%.6000Rf", value.get());
    std::string text(chars);
    mpfr_free_str(chars);
    text.erase(text.find_last_not_of('0') + 1);
    return text;
}

// Texts that are exactly half way between two values, or differ from that far behind where anything should
// matter.
TEST_F(BigFloatReference, textHalfWay) {
    RandomOperands random(9);
    for (int i = 0; i < 600; ++i) {
        const Precision prec = random.oneIn(2) ? 1000 : random.precision();
        const auto mode = static_cast<Flags>(random.between(0, allModes - 1));
        BigFloat value = random.value(std::int64_t{prec}, random.between(-1500, 1500));
        BigFloat half;
        half.setUInt(1);
        const std::int64_t halfPlace = std::int64_t{value.exponent()} - std::int64_t{prec} - 1;
        BigFloat::mulPowRadix(half, half, 2, halfPlace, exactPrecision, 0);
        half.setSign(value.sign());
        if (!random.oneIn(3))
            BigFloat::add(value, value, half, exactPrecision, 0);
        std::string text = decimalText(MpfrValue(value));
        if (random.oneIn(2)) {
            text.append(static_cast<std::size_t>(random.between(0, 9000)), '0');
            text += '1';
        } else if (random.oneIn(2)) {
            // The last digit one lower, and nines behind it.
            if (text.back() == '.')
                text.pop_back();
            std::size_t last = text.find_last_not_of("0.");
            --text[last];
            for (++last; last < text.size(); ++last)
                text[last] = text[last] == '0' ? '9' : text[last];
            if (text.find('.') == std::string::npos)
                text += '.';
            text.append(500, '9');
        }
        SCOPED_TRACE(testing::Message() << text << " prec " << prec << " mode " << mode);
        BigFloat r;
        const Status status = BigFloat::fromText(r, text, nullptr, 10, prec, mode);
        expectRounded(r, status, prec, mode, [&](mpfr_ptr out, mpfr_rnd_t rounding) {
            return mpfr_strtofr(out, text.c_str(), nullptr, 10, rounding);
        });
        if (HasFailure())
            return;
    }
}

/// "d.ddde5" from what the reference gives as digits and place.
std::string exponentForm(const MpfrValue& value, unsigned radix, std::size_t digits, Flags mode) {
    mpfr_exp_t place = 0;
    char* chars =
        mpfr_get_str(nullptr, &place, static_cast<int>(radix), digits, value.get(), referenceMode(mode));
    std::string text(chars);
    mpfr_free_str(chars);
    const std::size_t first = text[0] == '-' ? 1 : 0;
    if (text.size() > first + 1)
        text.insert(first + 1, 1, '.');
    const bool power = radix == 2 || radix == 4 || radix == 8 || radix == 16;
    const int bits = radix == 2 ? 1 : radix == 4 ? 2 : radix == 8 ? 3 : radix == 16 ? 4 : 1;
    return text + (power ? "p" : radix <= 10 ? "e" : "@") + std::to_string((place - 1) * bits);
}

constexpr Flags referenceModes[] = {roundNearestEven, roundTowardZero, roundDown, roundUp, roundAwayFromZero};

/// In an odd radix half an integer lies between two numbers of any count of digits, and the reference does
/// not say which one is even. The sum of the digits does.
std::string evenNeighbour(const MpfrValue& value, unsigned radix, std::size_t digits) {
    std::string below = exponentForm(value, radix, digits, roundTowardZero);
    unsigned sum = 0;
    for (const char c : below.substr(0, below.find_first_of(radix <= 10 ? 'e' : '@')))
        sum += c >= 'a' ? static_cast<unsigned>(c - 'a' + 10) : c >= '0' ? static_cast<unsigned>(c - '0') : 0;
    return sum % 2 == 0 ? below : exponentForm(value, radix, digits, roundAwayFromZero);
}

/// Whether so many digits end right between two numbers.
bool isTie(const MpfrValue& value, unsigned radix, std::size_t digits) {
    MpfrValue twice(mpfr_get_prec(value.get()));
    mpfr_mul_2ui(twice.get(), value.get(), 1, MPFR_RNDN);
    MpfrValue end(64);
    mpfr_ui_pow_ui(end.get(), radix, digits, MPFR_RNDD);
    return mpfr_integer_p(twice.get()) != 0 && mpfr_integer_p(value.get()) == 0 &&
           mpfr_cmpabs(value.get(), end.get()) < 0;
}

TEST_F(BigFloatReference, valueToSignificantDigits) {
    RandomOperands random(10);
    for (int i = 0; i < 6000; ++i) {
        const auto radix = static_cast<unsigned>(random.oneIn(2) ? 10 : random.between(2, 36));
        const Flags mode = referenceModes[random.between(0, 4)];
        const auto digits =
            static_cast<std::uint32_t>(random.oneIn(3) ? random.between(1, 1100) : random.between(1, 40));
        BigFloat value = random.oneIn(3) ? random.value(40, random.between(-30, 30)) : random.value();
        if (random.oneIn(3))
            // A short text in this radix, which leaves zeros or nines behind.
            BigFloat::fromText(value, random.digits(random.between(1, 30), radix) + "@-9", nullptr, radix,
                               1000, noSpecials);
        SCOPED_TRACE(testing::Message()
                     << describe(value) << " radix " << radix << " digits " << digits << " mode " << mode);
        std::string text;
        BigFloat::toText(text, value, radix, digits, mode | fixedDigits | forceExponent);
        const MpfrValue reference(value);
        const bool tie = radix % 2 != 0 && mode == roundNearestEven && isTie(reference, radix, digits);
        ASSERT_EQ(text, tie ? evenNeighbour(reference, radix, digits)
                            : exponentForm(reference, radix, digits, mode));
    }
}

TEST_F(BigFloatReference, valueToDigitsBehindThePoint) {
    RandomOperands random(11);
    constexpr const char* formats[] = {"%.*RNf", "%.*RZf", "%.*RDf", "%.*RUf", "%.*RYf"};
    for (int i = 0; i < 3000; ++i) {
        const auto mode = random.between(0, 4);
        const auto digits = static_cast<std::uint32_t>(random.between(0, random.oneIn(3) ? 400 : 12));
        BigFloat value = random.value(200, random.between(-60, 60));
        if (random.oneIn(3))
            // Halves, quarters and so on: ties.
            value = random.value(8, random.between(-6, 8));
        SCOPED_TRACE(testing::Message() << describe(value) << " digits " << digits << " mode " << mode);
        char* chars = nullptr;
        mpfr_asprintf(&chars, formats[mode], static_cast<int>(digits), MpfrValue(value).get());
        const std::string expected(chars);
        mpfr_free_str(chars);
        std::string text;
        BigFloat::toText(text, value, 10, digits, referenceModes[mode] | fractionDigits);
        ASSERT_EQ(text, expected);
    }
}

/// The significant digits of a text in exponent form with this marker.
std::size_t countDigits(const std::string& text, char marker) {
    const std::string mantissa = text.substr(0, text.find(marker));
    return static_cast<std::size_t>(
        std::count_if(mantissa.begin(), mantissa.end(), [](char c) { return c != '.' && c != '-'; }));
}

TEST_F(BigFloatReference, minimalDigitsReadBackAndFewerDoNot) {
    RandomOperands random(12);
    for (int i = 0; i < 3000; ++i) {
        const auto radix = static_cast<unsigned>(random.oneIn(2) ? 10 : random.between(2, 36));
        const Precision prec = random.oneIn(2) ? 1000 : random.precision();
        BigFloat value = random.value();
        if (random.oneIn(2))
            BigFloat::fromText(value, random.digits(random.between(1, 40), radix) + "@-17", nullptr, radix,
                               prec, noSpecials);
        else if (random.oneIn(8))
            value = random.value(1, random.between(-3000, 3000)); // often a power of two
        BigFloat::round(value, prec, roundNearestEven);
        SCOPED_TRACE(testing::Message() << describe(value) << " radix " << radix << " prec " << prec);
        std::string text;
        BigFloat::toText(text, value, radix, prec, minimalDigits | forceExponent);
        const bool power = radix <= 16 && text.find('p') != std::string::npos;
        MpfrValue read(static_cast<mpfr_prec_t>(prec));
        const auto readBack = [&](std::string candidate) {
            // The reference wants the exponent of a power of two in the radix itself behind "@".
            if (power) {
                const std::size_t marker = candidate.find('p');
                const std::int64_t bits = radix == 16 ? 4 : radix == 8 ? 3 : radix == 4 ? 2 : 1;
                candidate = candidate.substr(0, marker) + "@" +
                            std::to_string(std::stoll(candidate.substr(marker + 1)) / bits);
            }
            mpfr_strtofr(read.get(), candidate.c_str(), nullptr, static_cast<int>(radix), MPFR_RNDN);
            return read.same(value);
        };
        ASSERT_TRUE(readBack(text)) << text;
        const std::size_t digits = countDigits(text, power ? 'p' : radix <= 10 ? 'e' : '@');
        for (const Flags side : {roundDown, roundUp}) {
            if (digits > 1) {
                ASSERT_FALSE(readBack(exponentForm(MpfrValue(value), radix, digits - 1, side))) << text;
            }
        }
        std::string longer;
        BigFloat::toText(longer, value, radix, prec, shortestDigits | forceExponent);
        ASSERT_TRUE(readBack(longer)) << longer;
    }
}

} // namespace
} // namespace specloom::number
