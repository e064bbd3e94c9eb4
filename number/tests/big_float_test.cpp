#include "number/big_float.h"

#include <limits>  // std::numeric_limits
#include <utility> // std::move
#include <vector>  // std::vector

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

BigFloat floatOf(std::string_view text) {
    BigFloat value;
    std::size_t consumed = 0;
    BigFloat::fromText(value, text, &consumed, 10, 1000, roundNearestEven);
    EXPECT_EQ(consumed, text.size()) << text;
    return value;
}

/// The value as hexadecimal text, which shows every bit, the sign of zero, and specials.
std::string show(const BigFloat& value) {
    std::string text;
    BigFloat::toText(text, value, 16, 0, minimalDigits);
    return text;
}

struct SpecialCase {
    const char* a;
    const char* b;
    const char* sum;
    const char* difference;
    const char* product;
    const char* quotient;
    Status sumStatus;
    Status differenceStatus;
    Status productStatus;
    Status quotientStatus;
};

TEST(BigFloat, specialOperandsAsIeee754) {
    constexpr Status invalid = statusInvalid;
    constexpr Status byZero = statusDivideByZero;
    const std::vector<SpecialCase> cases = {
        {"0", "0", "0", "0", "0", "NaN", 0, 0, 0, invalid},
        {"-0", "0", "0", "-0", "-0", "NaN", 0, 0, 0, invalid},
        {"-0", "-0", "-0", "0", "0", "NaN", 0, 0, 0, invalid},
        {"2", "0", "2", "2", "0", "Inf", 0, 0, 0, byZero},
        {"2", "-0", "2", "2", "-0", "-Inf", 0, 0, 0, byZero},
        {"0", "2", "2", "-2", "0", "0", 0, 0, 0, 0},
        {"2", "2", "4", "0", "4", "1", 0, 0, 0, 0},
        {"inf", "2", "Inf", "Inf", "Inf", "Inf", 0, 0, 0, 0},
        {"-2", "inf", "Inf", "-Inf", "-Inf", "-0", 0, 0, 0, 0},
        {"inf", "inf", "Inf", "NaN", "Inf", "NaN", 0, invalid, 0, invalid},
        {"inf", "-inf", "NaN", "Inf", "-Inf", "NaN", invalid, 0, 0, invalid},
        {"inf", "0", "Inf", "Inf", "NaN", "Inf", 0, 0, invalid, 0},
        {"0", "-inf", "-Inf", "Inf", "NaN", "-0", 0, 0, invalid, 0},
        {"nan", "2", "NaN", "NaN", "NaN", "NaN", 0, 0, 0, 0},
        {"0", "nan", "NaN", "NaN", "NaN", "NaN", 0, 0, 0, 0},
    };
    struct CheckedOperation {
        Status (*run)(BigFloat&, const BigFloat&, const BigFloat&, Precision, Flags) noexcept;
        const char* SpecialCase::*result;
        Status SpecialCase::*status;
    };
    const std::vector<CheckedOperation> operations = {
        {BigFloat::add, &SpecialCase::sum, &SpecialCase::sumStatus},
        {BigFloat::sub, &SpecialCase::difference, &SpecialCase::differenceStatus},
        {BigFloat::mul, &SpecialCase::product, &SpecialCase::productStatus},
        {BigFloat::div, &SpecialCase::quotient, &SpecialCase::quotientStatus},
    };
    for (const SpecialCase& c : cases) {
        for (const CheckedOperation& operation : operations) {
            SCOPED_TRACE(testing::Message()
                         << c.a << ", " << c.b << " operation " << &operation - &operations[0]);
            const BigFloat a = floatOf(c.a);
            const BigFloat b = floatOf(c.b);
            BigFloat r;
            EXPECT_EQ(operation.run(r, a, b, 100, roundNearestEven), c.*operation.status);
            EXPECT_EQ(show(r), c.*operation.result);
            // The same with the result in place of an operand.
            BigFloat inA = a;
            EXPECT_EQ(operation.run(inA, inA, b, 100, roundNearestEven), c.*operation.status);
            EXPECT_EQ(show(inA), c.*operation.result);
            BigFloat inB = b;
            EXPECT_EQ(operation.run(inB, a, inB, 100, roundNearestEven), c.*operation.status);
            EXPECT_EQ(show(inB), c.*operation.result);
        }
    }
}

TEST(BigFloat, representation) {
    BigFloat value;
    value.setUInt(std::uint64_t{1} << 40);
    EXPECT_EQ(value.exponent(), 41);
    ASSERT_EQ(value.limbs().size(), 1U) << "zero limbs at the bottom are dropped";
    EXPECT_EQ(value.limbs()[0], 0x80000000U);
    value.setInt(std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(value.sign(), 1U);
    EXPECT_EQ(value.exponent(), 64);
    value.setDouble(-0.0);
    EXPECT_TRUE(value.isZero());
    EXPECT_EQ(value.sign(), 1U);
    EXPECT_EQ(value.exponent(), BigFloat::zeroExponent);
    value.setDouble(-std::numeric_limits<double>::infinity());
    EXPECT_TRUE(value.isInfinite());
    EXPECT_EQ(value.exponent(), 0x7ffffffe);
    value.setDouble(-std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(value.isNaN());
    EXPECT_EQ(value.sign(), 0U);
    EXPECT_EQ(value.exponent(), 0x7fffffff);

    BigFloat source = floatOf("1e300");
    const BigFloat copied = source;
    const BigFloat moved = std::move(source);
    EXPECT_EQ(source.limbs().size(), 0U); // NOLINT(bugprone-use-after-move): what a move leaves is promised
    EXPECT_EQ(BigFloat::compareFull(copied, moved), 0);
}

TEST(BigFloat, compareSpecialsAndLengths) {
    // In ascending order; equal ones share a line.
    const std::vector<std::vector<const char*>> ascending = {{"-inf"},    {"-1e999"}, {"-1"},  {"-1e-999"},
                                                             {"0", "-0"}, {"1e-999"}, {"0.1"}, {"1", "1.0"},
                                                             {"1e999"},   {"inf"}};
    for (std::size_t i = 0; i < ascending.size(); ++i)
        for (std::size_t j = 0; j < ascending.size(); ++j)
            for (const char* a : ascending[i])
                for (const char* b : ascending[j])
                    EXPECT_EQ(BigFloat::compareFull(floatOf(a), floatOf(b)), i < j   ? -1
                                                                             : i > j ? 1
                                                                                     : 0)
                        << a << ", " << b;
    EXPECT_EQ(BigFloat::compareFull(floatOf("nan"), floatOf("nan")), 2);
    EXPECT_EQ(BigFloat::compareFull(floatOf("nan"), floatOf("1")), 2);
    EXPECT_EQ(BigFloat::compareFull(floatOf("-inf"), floatOf("nan")), 2);
}

TEST(BigFloat, rangeOfExponents) {
    struct Case {
        std::int64_t exponent;
        Flags flags;
        const char* result;
        Status status;
    };
    constexpr std::int64_t normal = 1 << 30;
    constexpr std::int64_t all = 0x7ffffffd;
    const std::vector<Case> cases = {
        {normal - 1, 0, "1p1073741823", 0},
        {normal, 0, "Inf", statusOverflow | statusInexact},
        {normal, roundTowardZero, "1.fcp1073741823", statusOverflow | statusInexact},
        {normal, extendedExponents, "1p1073741824", 0},
        {all - 1, extendedExponents, "1p2147483644", 0},
        {all, extendedExponents, "Inf", statusOverflow | statusInexact},
        {-normal - 1, 0, "1p-1073741825", 0},
        {-normal - 2, 0, "0", statusUnderflow | statusInexact},
        {-normal - 2, roundNearestAway, "1p-1073741825", statusUnderflow | statusInexact},
        {-normal - 3, roundNearestAway, "0", statusUnderflow | statusInexact},
        {-normal - 3, roundUp, "1p-1073741825", statusUnderflow | statusInexact},
        {-normal - 3, extendedExponents, "1p-1073741827", 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.exponent);
        BigFloat value;
        value.setUInt(1);
        EXPECT_EQ(BigFloat::mulPowRadix(value, value, 2, c.exponent, 7, c.flags), c.status);
        std::string text;
        // In radix 2, where the exponent counts bits.
        BigFloat::toText(text, value, 2, 0, minimalDigits);
        std::string expected = c.result;
        if (expected == "1.fcp1073741823")
            expected = "1.111111p1073741823";
        EXPECT_EQ(text, expected);
    }
}

TEST(BigFloat, addIntAndEndlessQuotients) {
    BigFloat r;
    EXPECT_EQ(BigFloat::addInt(r, floatOf("0.5"), -3, 10, 0), 0U);
    EXPECT_EQ(show(r), "-2.8");
    // Divisions without end get as many bits as the operands have.
    EXPECT_EQ(BigFloat::div(r, floatOf("1"), floatOf("3"), exactPrecision, 0), statusInexact);
    EXPECT_EQ(r.limbs().size(), 1U);
    EXPECT_EQ(BigFloat::mulPowRadix(r, floatOf("625"), 10, -4, exactPrecision, 0), 0U);
    EXPECT_EQ(show(r), "0.1");
}

} // namespace
} // namespace specloom::number
