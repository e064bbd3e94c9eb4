#include "number/big_float.h"

#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

TEST(BigFloatText, reading) {
    struct Case {
        const char* text;
        unsigned radix;
        Flags flags;
        const char* result; // in decimal
        std::size_t consumed;
    };
    const std::vector<Case> cases = {
        {"12.50", 10, 0, "12.5", 5},
        {"-.5", 10, 0, "-0.5", 3},
        {"+7.", 0, 0, "7", 3},
        {"1.2.3", 10, 0, "1.2", 3},
        {"1e3", 10, 0, "1000", 3},
        {"1E+3", 10, 0, "1000", 4},
        {"1@-2", 10, 0, "0.01", 4},
        {"25e", 10, 0, "25", 2},
        {"25e+", 10, 0, "25", 2},
        {"25ex", 10, 0, "25", 2},
        {"3p2", 10, 0, "3", 1},
        {"-0", 10, 0, "-0", 2},
        {"000e5", 10, 0, "0", 5},
        {"", 10, 0, "NaN", 0},
        {"-", 10, 0, "NaN", 0},
        {".", 10, 0, "NaN", 0},
        {"e5", 10, 0, "NaN", 0},
        {"x", 10, 0, "NaN", 0},
        // Prefixes.
        {"0x1F", 0, 0, "31", 4},
        {"0X1f", 16, 0, "31", 4},
        {"0x1f", 10, 0, "0", 1},
        {"0x1f", 0, noHexPrefix, "0", 1},
        {"0xg", 0, 0, "NaN", 0},
        {"0o17", 0, binaryAndOctalPrefixes, "15", 4},
        {"0b101", 0, binaryAndOctalPrefixes, "5", 5},
        {"0b2", 0, binaryAndOctalPrefixes, "NaN", 0},
        {"0b101", 0, 0, "0", 1},
        {"0b101", 2, binaryAndOctalPrefixes, "0", 1},
        // Exponents by radix: "e" is a digit above 10, "p" counts bits.
        {"1e2", 16, 0, "482", 3},
        {"1p4", 16, 0, "16", 3},
        {"1@2", 16, 0, "256", 3},
        {"1p-1", 2, 0, "0.5", 4},
        {"11e2", 2, 0, "12", 4},
        {"1p4", 32, 0, "1828", 3},
        {"z@1", 36, 0, "1260", 3},
        {"18", 8, 0, "1", 1},
        // Specials.
        {"nan", 10, 0, "NaN", 3},
        {"NaNs", 16, 0, "NaN", 3},
        {"-nan", 10, 0, "NaN", 0},
        {"inf", 10, 0, "Inf", 3},
        {"-Infinity", 10, 0, "-Inf", 9},
        {"+INFINITE", 10, 0, "Inf", 4},
        {"inf", 10, noSpecials, "NaN", 0},
        {"nan", 36, 0, "30191", 3},
        // Exponents of any length.
        {"1e999999999999999999999999", 10, 0, "Inf", 26},
        {"-1e-999999999999999999999999", 10, 0, "-0", 28},
        {"0e999999999999999999999999", 10, 0, "0", 26},
        {"1p-99999999999999", 16, 0, "0", 17},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << '"' << c.text << "\" radix " << c.radix << " flags " << c.flags);
        BigFloat value;
        std::size_t consumed = 99;
        BigFloat::fromText(value, c.text, &consumed, c.radix, 100, c.flags);
        EXPECT_EQ(consumed, c.consumed);
        std::string text;
        BigFloat::toText(text, value, 10, 100, minimalDigits);
        EXPECT_EQ(text, c.result);
    }
}

TEST(BigFloatText, statusOfReading) {
    struct Case {
        const char* text;
        Precision prec;
        Flags flags;
        Status status;
    };
    const std::vector<Case> cases = {
        {"0.5", 1, 0, 0},
        {"0.1", 1000, 0, statusInexact},
        {"1e400000000", 1000, 0, statusOverflow | statusInexact},
        {"1e400000000", 1000, extendedExponents, statusInexact},
        {"1e-400000000", 1000, 0, statusUnderflow | statusInexact},
        {"1e650000000", 1000, extendedExponents, statusOverflow | statusInexact},
        {"12345", exactPrecision, 0, 0},
    };
    for (const Case& c : cases) {
        BigFloat value;
        EXPECT_EQ(BigFloat::fromText(value, c.text, nullptr, 10, c.prec, c.flags), c.status) << c.text;
    }
}

// Half of 15 has no end in radix 5, so that no count of digits is enough to see on which side of it a text
// is.
TEST(BigFloatText, digitsFarBehindAHalfInAnOddRadix) {
    for (const std::size_t twos : {30U, 300U, 3000U}) {
        for (const bool above : {true, false}) {
            const std::string text =
                "12." + std::string(twos, '2') + (above ? "3" : "1") + std::string(40, '4');
            BigFloat value;
            BigFloat::fromText(value, text, nullptr, 5, 4, roundTowardZero);
            std::string read;
            BigFloat::toText(read, value, 10, 4, minimalDigits);
            EXPECT_EQ(read, above ? "7.5" : "7") << text;
        }
    }
}

TEST(BigFloatText, writing) {
    struct Case {
        const char* value;
        unsigned radix;
        std::uint32_t digits;
        Flags flags;
        const char* text;
    };
    const std::vector<Case> cases = {
        // Fixed digits: zeros fill up, the exponent form begins where there are more places than digits.
        {"1.5", 10, 4, fixedDigits, "1.500"},
        {"9.996", 10, 3, fixedDigits, "10.0"},
        {"1234", 10, 4, fixedDigits, "1234"},
        {"1234", 10, 3, fixedDigits, "1.23e3"},
        {"1234", 10, 3, fixedDigits | scriptStyle, "1.23e+3"},
        {"-1234", 10, 1, fixedDigits, "-1e3"},
        {"0.000001", 10, 2, fixedDigits, "0.0000010"},
        {"0.0000001", 10, 2, fixedDigits | scriptStyle, "1.0e-7"},
        {"0", 10, 3, fixedDigits, "0.00"},
        {"1.5", 10, 3, fixedDigits | forceExponent, "1.50e0"},
        {"0", 10, 3, fixedDigits | forceExponent, "0.00e0"},
        // Digits behind the point: never the exponent form unless forced.
        {"1234.567", 10, 1, fractionDigits, "1234.6"},
        {"999.96", 10, 1, fractionDigits, "1000.0"},
        {"1e-900", 10, 2, fractionDigits | roundUp, "0.01"},
        {"0.5", 10, 0, fractionDigits, "0"},
        {"0.50000000000000000000000000000000000001", 10, 0, fractionDigits, "1"},
        {"2.50000000000000000000000000000000000001", 10, 0, fractionDigits, "3"},
        {"12", 10, 1, fractionDigits | forceExponent, "1.20e1"},
        {"0", 10, 2, fractionDigits, "0.00"},
        // Shortest and minimal: as many digits as the precision in bits needs.
        {"0.1", 10, 53, shortestDigits, "0.10000000000000001"},
        {"0.1", 10, 53, minimalDigits, "0.1"},
        {"0", 10, 53, minimalDigits, "0"},
        {"-0", 10, 53, minimalDigits, "-0"},
        {"1e16", 10, 53, minimalDigits, "10000000000000000"},
        {"1e17", 10, 53, minimalDigits, "1e17"},
        {"2", 10, 1, minimalDigits, "2"},
        {"4", 10, 1, minimalDigits, "4"},
        {"inf", 10, 53, 0, "Inf"},
        {"-inf", 10, 53, scriptStyle, "-Infinity"},
        {"nan", 10, 53, scriptStyle | radixPrefix, "NaN"},
        // Other radixes, the prefix and the exponent's marker.
        {"255", 16, 0, minimalDigits | radixPrefix, "0xff"},
        {"-8", 8, 0, minimalDigits | radixPrefix, "-0o10"},
        {"5", 2, 0, minimalDigits | radixPrefix, "0b101"},
        {"5", 10, 0, minimalDigits | radixPrefix, "5"},
        {"0.75", 16, 0, minimalDigits, "0.c"},
        {"255", 16, 4, fixedDigits | forceExponent | scriptStyle, "f.f00p+4"},
        {"0.0625", 16, 1, fixedDigits | forceExponent, "1p-4"},
        {"64", 8, 1, fixedDigits | forceExponent, "1p6"},
        {"1024", 32, 1, fixedDigits | forceExponent, "1@2"},
        {"35", 36, 1, fixedDigits, "z"},
        {"35.9", 36, 1, fixedDigits, "1@1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message()
                     << c.value << " radix " << c.radix << " digits " << c.digits << " flags " << c.flags);
        BigFloat value;
        BigFloat::fromText(value, c.value, nullptr, 10, 1000, 0);
        const Flags format = c.flags & formatMask;
        if (format == shortestDigits || format == minimalDigits)
            BigFloat::round(value, c.digits == 0 ? 1000 : c.digits, 0);
        std::string text = "appended to: ";
        BigFloat::toText(text, value, c.radix, c.digits, c.flags);
        EXPECT_EQ(text, std::string("appended to: ") + c.text);
    }
}

// Long enough to be divided and conquered on several levels, both ways.
TEST(BigFloatText, thousandsOfDigits) {
    for (const unsigned radix : {3U, 10U, 16U, 36U}) {
        std::string digits = "1";
        std::uint64_t state = radix;
        while (digits.size() < 20000) {
            state = state * 6364136223846793005U + 1442695040888963407U;
            // A stretch of zeros too, so that a part of the number is zero as a whole.
            const bool zeros = digits.size() > 4000 && digits.size() < 12000;
            digits += zeros ? '0' : static_cast<char>('0' + (state >> 33) % std::min(radix, 10U));
        }
        BigFloat value;
        ASSERT_EQ(BigFloat::fromText(value, digits, nullptr, radix, exactPrecision, noSpecials | noHexPrefix),
                  0U);
        std::string text;
        BigFloat::toText(text, value, radix, 20000, fixedDigits);
        EXPECT_EQ(text, digits) << "radix " << radix;
    }
}

} // namespace
} // namespace specloom::number
