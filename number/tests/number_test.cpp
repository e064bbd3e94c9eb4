#include "foundation/hash.h"
#include "number/number.h"
#include "test_support/failure.h"

#include <cmath>     // std::nan
#include <limits>    // std::numeric_limits
#include <stdexcept> // std::runtime_error
#include <utility>   // std::move
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

using test_support::failureOf;

constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::uint64_t unsignedLargest = std::numeric_limits<std::uint64_t>::max();
constexpr double infinity = std::numeric_limits<double>::infinity();

Number bigNumber(std::string_view digits) {
    Number number = Number::fromText(digits);
    EXPECT_EQ(number.kind(), NumberKind::Big) << digits;
    return number;
}

TEST(Number, kindsOfConstructionAndAssignment) {
    EXPECT_EQ(Number().kind(), NumberKind::Signed);
    EXPECT_EQ(Number().signedValue(), 0);
    EXPECT_EQ(Number(-7).kind(), NumberKind::Signed);
    EXPECT_EQ(Number(7U).kind(), NumberKind::Unsigned);
    EXPECT_EQ(Number(7.0F).kind(), NumberKind::Float);

    Number number(std::uint64_t{5});
    number = std::int64_t{6};
    EXPECT_EQ(number.kind(), NumberKind::Unsigned) << "not negative, so that it stays unsigned";
    EXPECT_EQ(number.unsignedValue(), 6U);
    number = std::int64_t{-6};
    EXPECT_EQ(number.kind(), NumberKind::Signed);
    number = std::int64_t{6};
    EXPECT_EQ(number.kind(), NumberKind::Signed);
    number = std::string_view("1e999");
    EXPECT_EQ(number.kind(), NumberKind::Big);
    number = std::uint64_t{8};
    EXPECT_EQ(number.kind(), NumberKind::Unsigned);
    number = 0.5;
    EXPECT_EQ(number.kind(), NumberKind::Float);
    EXPECT_EQ(number.floatValue(), 0.5);
}

TEST(Number, copiesAndMoves) {
    Number source = bigNumber("123456789012345678901234567890");
    Number copied = source;
    Number moved = std::move(source);
    EXPECT_EQ(copied.compare(moved), 0);
    EXPECT_EQ(source.compare(0), 0); // NOLINT(bugprone-use-after-move): what a move leaves is promised
    Number& self = copied;
    copied = self;
    EXPECT_EQ(copied.compare(moved), 0);
    copied = std::move(self);
    EXPECT_EQ(copied.compare(moved), 0);
    copied = Number(3);
    EXPECT_EQ(copied.signedValue(), 3);
    copied = moved;
    EXPECT_EQ(copied.toString(), "123456789012345678901234567890");
}

TEST(Number, subtraction) {
    struct Case {
        Number a;
        Number b;
        NumberKind kind;
        const char* result;
    };
    using enum NumberKind;
    const std::vector<Case> cases = {
        {5, 7, Signed, "-2"},
        {5U, 7, Unsigned, "18446744073709551614"},
        {5, 7U, Signed, "-2"},
        {smallest, 1, Signed, "9223372036854775807"},
        {1, 0.5, Float, "0.5"},
        {unsignedLargest, 0.0, Float, "1.8446744073709552e+19"},
        {0.5, 1, Float, "-0.5"},
        {0.75, 0.5, Float, "0.25"},
        {bigNumber("18446744073709551616"), 1U, Big, "18446744073709551615"},
        {bigNumber("18446744073709551616"), smallest, Big, "27670116110564327424"},
        {bigNumber("18446744073709551616"), 0.5, Big, "18446744073709551615.5"},
        {1, bigNumber("18446744073709551616"), Big, "-18446744073709551615"},
        {0.5, bigNumber("18446744073709551616"), Big, "-18446744073709551615.5"},
        {bigNumber("18446744073709551616"), bigNumber("18446744073709551616"), Big, "0"},
        {bigNumber("1e999"), std::nan(""), Big, "NaN"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.a.toString() + " - " + c.b.toString());
        Number difference = c.a;
        difference -= c.b;
        EXPECT_EQ(difference.kind(), c.kind);
        EXPECT_EQ(difference.toString(), c.result);
    }
    Number number = bigNumber("1e999");
    const Number& self = number;
    number -= self;
    EXPECT_EQ(number.compare(0), 0);
}

/// Through the overload for what `b` holds.
int compareUnwrapped(const Number& a, const Number& b) {
    switch (b.kind()) {
    case NumberKind::Signed:
        return a.compare(b.signedValue());
    case NumberKind::Unsigned:
        return a.compare(b.unsignedValue());
    case NumberKind::Float:
        return a.compare(b.floatValue());
    default:
        return a.compare(b);
    }
}

TEST(Number, comparisonOfAllKinds) {
    // In ascending order; equal ones share a line.
    const std::vector<std::vector<Number>> ascending = {
        {bigNumber("-1e999")},
        {-1e300},
        {bigNumber("-9223372036854775809")},
        {smallest, -9223372036854775808.0},
        {-1, -1.0, bigNumber("-1.00000000000000000000")},
        {-0.5, bigNumber("-0.50000000000000000000")},
        {0, 0U, 0.0, -0.0, bigNumber("0.00000000000000000000")},
        {0.1},
        {bigNumber("0.10000000000000001000")},
        {1, 1U, 1.0, bigNumber("1.000000000000000000000")},
        {std::int64_t{1} << 62, std::uint64_t{1} << 62, 4611686018427387904.0},
        {bigNumber("9223372036854775806.50")},
        {std::uint64_t{1} << 63, 9223372036854775808.0, bigNumber("9223372036854775808.0000")},
        {bigNumber("18446744073709551614.5")},
        {unsignedLargest},
        {bigNumber("18446744073709551616")},
        {1e300},
        {bigNumber("1e999")},
    };
    for (std::size_t i = 0; i < ascending.size(); ++i) {
        for (std::size_t j = 0; j < ascending.size(); ++j) {
            const int expected = i < j ? -1 : i > j ? 1 : 0;
            for (const Number& a : ascending[i]) {
                for (const Number& b : ascending[j]) {
                    SCOPED_TRACE(a.toString() + " against " + b.toString());
                    EXPECT_EQ(a.compare(b), expected);
                    EXPECT_EQ(compareUnwrapped(a, b), expected);
                }
            }
        }
    }
}

TEST(Number, comparisonOfIntegersAndFloatsGoesThroughDoubles) {
    EXPECT_EQ(Number(largest).compare(9223372036854775808.0), 0);
    EXPECT_EQ(Number(unsignedLargest).compare(18446744073709551616.0), 0);
    EXPECT_EQ(Number(18446744073709551616.0).compare(unsignedLargest), 0);
    EXPECT_EQ(Number(largest).compare(unsignedLargest), -1);
    EXPECT_EQ(Number(-1).compare(1U), -1);
}

TEST(Number, comparisonWithNotANumber) {
    const Number nan(std::nan(""));
    const Number large = bigNumber("1e999");
    EXPECT_EQ(nan.compare(large), 2);
    EXPECT_EQ(large.compare(nan), 2);
    Number bigNan = large;
    bigNan -= nan;
    EXPECT_EQ(bigNan.compare(bigNan), 2);
    EXPECT_EQ(bigNan.compare(1), 2);
    EXPECT_EQ(Number(1).compare(bigNan), 2);
    EXPECT_NE(nan.compare(nan), 0);
    EXPECT_NE(nan.compare(1), 0);
    EXPECT_NE(Number(1U).compare(nan), 0);
}

TEST(Number, hashing) {
    constexpr std::uint64_t offset = 0x9e3779b9;
    EXPECT_EQ(Number(5).hash(), 5 + offset);
    EXPECT_EQ(Number(5U).hash(), 5 + offset);
    EXPECT_EQ(Number(-1).hash(), offset - 1);
    EXPECT_EQ(Number(1.5).hash(), 1 + offset);
    EXPECT_EQ(Number(-1.5).hash(), offset - 1);
    EXPECT_EQ(Number(9223372036854775808.0).hash(), (std::uint64_t{1} << 63) + offset);
    EXPECT_EQ(Number(18446744073709549568.0).hash(), 18446744073709549568U + offset);
    // No integer stands for these; all that counts is that they have a hash.
    EXPECT_EQ(Number(infinity).hash(), Number(1e300).hash());
    EXPECT_EQ(Number(-infinity).hash(), Number(std::nan("")).hash());

    // 2^64 as sign 0, exponent 65 and one limb.
    const std::uint64_t expected =
        combine(combine(combine(combine(0, fnv1a(0, 4)), fnv1a(65, 4)), fnv1a(1, 4)), fnv1a(0x80000000, 4));
    EXPECT_EQ(bigNumber("18446744073709551616").hash(), expected);
    EXPECT_EQ(bigNumber("18446744073709551616.0").hash(), expected);
    EXPECT_NE(bigNumber("-18446744073709551616").hash(), expected);
}

TEST(Number, integers) {
    struct Case {
        Number number;
        bool integer;
    };
    const std::vector<Case> cases = {
        {0, true},
        {unsignedLargest, true},
        {1.0, true},
        {-0.0, true},
        {1e300, true},
        {0.5, false},
        {infinity, false},
        {std::nan(""), false},
        {bigNumber("18446744073709551616"), true},
        {bigNumber("1234567890123456789012345"), true},
        {bigNumber("1234567890123456789012345.5"), false},
        {bigNumber("1e999"), true},
        // Integral, but of more than 101 digits, and so written with a point.
        {bigNumber("1.500000000000000000000e200"), false},
        {bigNumber("1.000000000000000000000e200"), true},
        {bigNumber("1." + std::string(100, '0') + "1"), true},
        {bigNumber("1." + std::string(99, '0') + "1"), false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.number.isInteger(), c.integer) << c.number.toString();
}

TEST(Number, classesOfFloats) {
    EXPECT_TRUE(Number(std::nan("")).isNaN());
    EXPECT_FALSE(Number(infinity).isNaN());
    EXPECT_TRUE(Number(-infinity).isInfinite());
    EXPECT_FALSE(Number(std::nan("")).isInfinite());
    EXPECT_FALSE(Number(1e308).isInfinite());
    EXPECT_FALSE(Number(1).isNaN());
    EXPECT_FALSE(Number(unsignedLargest).isInfinite());
}

TEST(Number, multiples) {
    struct Case {
        Number number;
        Number divisor;
        bool multiple;
    };
    const std::vector<Case> cases = {
        {10, 3, false},
        {9, 3, true},
        {-9, 3, true},
        {9U, 3, true},
        {0, 5U, true},
        {smallest, -1, true},
        {-1, unsignedLargest, true}, // the same bits
        {-3, 3U, false},             // 18446744073709551613
        {-1, 3U, true},
        {-2, 7U, true}, // 18446744073709551614
        {-3, 7U, false},
        {0.5, 0.1, true},
        {0.3, 0.1, false}, // 2.9999999999999996
        {4.5, 1.5, true},
        {10, 2.5, true},
        {-10, 2.5, true},
        {10, 4.0, false},
        {7.0, 2, false},
        {1, 0.0, false},
        {infinity, 2, false},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.number.isMultipleOf(c.divisor), c.multiple)
            << c.number.toString() << " of " << c.divisor.toString();
}

TEST(Number, conversions) {
    EXPECT_EQ(Number(-3).toDouble(), -3.0);
    EXPECT_EQ(Number(unsignedLargest).toDouble(), 18446744073709551615.0);
    EXPECT_EQ(Number(0.1).toDouble(), 0.1);
    EXPECT_EQ(Number(unsignedLargest).toLong(), -1);
    EXPECT_EQ(Number(-1).toULong(), unsignedLargest);
    EXPECT_EQ(Number(smallest).toLong(), smallest);
    EXPECT_EQ(failureOf<std::runtime_error>([] { return Number(1.0).toLong(); }),
              "Cannot cast double to long");
    EXPECT_EQ(failureOf<std::runtime_error>([] { return Number(1.0).toULong(); }),
              "Cannot cast double to long");
}

TEST(NumberFormatter, precisionOfBigNumbers) {
    struct Case {
        const char* value;
        unsigned precision;
        const char* text;
    };
    const std::vector<Case> cases = {
        {"1234567890123456789012345", 6, "1.234568e+24"},
        {"1000000000000000000000000", 6, "1e+24"},
        {"1200000000000000000000000", 6, "1.2e+24"},
        {"12345678901234567890.12345", 19, "12345678901234567890"},
        {"12345678901234567890.12345", 21, "12345678901234567890.12"},
        {"0.000011726012417057063", 6, "0.00001172601"},
        {"0.100000000000000000000", 6, "0.1"},
        {"-99999999999999999999.9", 3, "-1e+20"},
        {"1e-999", 1, "1e-999"},
    };
    for (const Case& c : cases) {
        std::string text = "x=";
        bigNumber(c.value).appendTo(text, c.precision);
        EXPECT_EQ(text, std::string("x=") + c.text);
    }
    EXPECT_EQ(Number(0.1).toString(2), "0.1") << "a machine number ignores the precision";
    EXPECT_EQ(Number(123456).toString(2), "123456");
    EXPECT_EQ(Number(infinity).toString(), "inf");
    EXPECT_EQ(Number(std::nan("")).toString(), "nan");
}

TEST(NumberDeathTest, bigNumbersWhereTheyAreNotHandled) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const Number number = bigNumber("1e999");
    EXPECT_DEATH(static_cast<void>(number.isNaN()), "Unreachable code.*number/src/number.cpp");
    EXPECT_DEATH(static_cast<void>(number.isInfinite()), "Unreachable code");
    EXPECT_DEATH(static_cast<void>(number.toDouble()), "Unreachable code");
    EXPECT_DEATH(static_cast<void>(number.toLong()), "Unreachable code");
    EXPECT_DEATH(static_cast<void>(number.toULong()), "Unreachable code");
    EXPECT_DEATH(static_cast<void>(number.isMultipleOf(1)), "Unreachable code");
    EXPECT_DEATH(static_cast<void>(Number(1).isMultipleOf(number)), "Unreachable code");
}

TEST(NumberDeathTest, integerDivisorZero) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(static_cast<void>(Number(1).isMultipleOf(0)), "");
    EXPECT_DEATH(static_cast<void>(Number(1U).isMultipleOf(0U)), "");
}

} // namespace
} // namespace specloom::number
