#include "number/number.h"
#include "number/number_literal.h"
#include "test_support/failure.h"

#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

struct BadText {
    const char* text;
    std::int32_t status;
    const char* error;
};

TEST(NumberLiteral, whatIsNoNumber) {
    const std::vector<BadText> cases = {
        {"", 1, "empty string"},
        {"abc", 2, "Invalid number format - expected sign or digit"},
        {".5", 2, "Invalid number format - expected sign or digit"},
        {" 1", 2, "Invalid number format - expected sign or digit"},
        {"Infinity", 2, "Invalid number format - expected sign or digit"},
        {"NaN", 2, "Invalid number format - expected sign or digit"},
        {"\xd9\xa1", 2, "Invalid number format - expected sign or digit"},
        {"--1", 3, "Invalid number format - expected digit"},
        {"-.5", 3, "Invalid number format - expected digit"},
        {"+", 4, "Invalid number format - no integral digits found"},
        {"-", 4, "Invalid number format - no integral digits found"},
        {"0x10", 5, "Invalid number format"},
        {"1_000", 5, "Invalid number format"},
        {"1,5", 5, "Invalid number format"},
        {"2019-01-01", 5, "Invalid number format"},
        {"1e", 5, "Invalid number format"},
        {"1.5e", 5, "Invalid number format"},
        {"1 ", 5, "Invalid number format"},
        {"1.", 6, "Invalid number format - no fractional digits found"},
        {"1.e5", 6, "Invalid number format - no fractional digits found"},
        {"1..5", 6, "Invalid number format - no fractional digits found"},
        {"1.5.5", 7, "Invalid number format - expected exponent sign"},
        {"1.5f", 7, "Invalid number format - expected exponent sign"},
        {"1ex", 8, "Invalid number format - expected exponent sign or digit"},
        {"1e+", 8, "Invalid number format - expected exponent sign or digit"},
        {"1.5e--1", 8, "Invalid number format - expected exponent sign or digit"},
        {"1e5.5", 9, "Invalid number format - expected end of string"},
        {"1e5 ", 9, "Invalid number format - expected end of string"},
    };
    for (const BadText& c : cases) {
        SCOPED_TRACE(c.text);
        const std::string text = c.text;
        EXPECT_EQ(classifyNumber(text.data(), text.data() + text.size()).status, c.status);
        EXPECT_FALSE(Number::tryParse(text).has_value());
        EXPECT_EQ(test_support::failureOf<std::runtime_error>([&] { return Number::fromText(text); }),
                  c.error);
    }
}

TEST(NumberLiteral, parts) {
    const std::string text = "-0012.3400E-056";
    const NumberLiteral literal = parseNumberLiteral(text.data(), text.data() + text.size());
    EXPECT_EQ(literal.status, 0);
    EXPECT_TRUE(literal.negative);
    EXPECT_EQ(std::string(literal.integerBegin, literal.integerEnd), "0012");
    EXPECT_EQ(std::string(literal.fractionBegin, literal.fractionEnd), "3400");
    EXPECT_TRUE(literal.exponentNegative);
    EXPECT_EQ(std::string(literal.exponentBegin, literal.exponentEnd), "056");
    EXPECT_EQ(literal.digitCount(), 8U);
}

struct GoodText {
    const char* text;
    NumberKind kind;
    const char* written;
};

TEST(NumberParser, kindsAndValues) {
    using enum NumberKind;
    const std::vector<GoodText> cases = {
        {"0", Unsigned, "0"},
        {"-0", Signed, "0"},
        {"-1", Signed, "-1"},
        {"+5", Unsigned, "5"},
        {"007", Unsigned, "7"},
        {"-9223372036854775808", Signed, "-9223372036854775808"},
        {"-9223372036854775809", Big, "-9223372036854775809"},
        {"18446744073709551615", Unsigned, "18446744073709551615"},
        {"18446744073709551616", Big, "18446744073709551616"},
        {"00000000000000000007", Unsigned, "7"},
        {"000000000000000000007", Big, "7"},
        {"1.5", Float, "1.5"},
        {"+1.5", Float, "1.5"},
        {"0.1", Float, "0.1"},
        {"1.0", Float, "1.0"},
        {"1e3", Float, "1000.0"},
        {"1E+2", Float, "100.0"},
        {"-0.0", Float, "-0.0"},
        {"-0e5", Float, "-0.0"},
        {"1e25", Float, "1e+25"},
        {"0.30000000000000004", Float, "0.30000000000000004"},
        {"1.7976931348623157e308", Float, "1.7976931348623157e+308"},
        {"5e-324", Float, "5e-324"},
        {"2.5e-320", Float, "2.5e-320"},
        // Out of the range of a double, above and below.
        {"1e999", Big, "1e+999"},
        {"-1e999", Big, "-1e+999"},
        {"1.7976931348623159e308", Big, nullptr},
        {"1e-999", Big, "1e-999"},
        {"2e-324", Big, "2e-324"},
        {"0e999", Float, "0.0"},
        {"-0.000e99999999999999999999", Float, "-0.0"},
        // More digits than a machine number has.
        {"12345678901234567890.5", Big, "12345678901234567890.5"},
        {"1234567890123456789012345", Big, "1234567890123456789012345"},
        {"0.000011726012417057063", Big, "0.000011726012417057063"},
        {"-1234567890.12345678901234e-5", Big, "-12345.6789012345678901234"},
        {"1.00000000000000000000e-7", Big, "1.00000000000000000000e-7"},
        {"0.100000000000000000000", Big, "0.10000000000000000000"},
        {"0.500000000000000000000", Big, "0.5"},
        {"1.000000000000000000000e302", Big, nullptr},
        {"1.000000000000000000000e303", Big, "1.00000000000000000000e+303"},
    };
    for (const GoodText& c : cases) {
        SCOPED_TRACE(c.text);
        const Number number = Number::fromText(c.text);
        EXPECT_EQ(number.kind(), c.kind);
        std::string expected = c.written != nullptr ? c.written : number.toString();
        EXPECT_EQ(number.toString(), expected);
        const std::optional<Number> tried = Number::tryParse(c.text);
        ASSERT_TRUE(tried.has_value());
        EXPECT_EQ(tried->kind(), c.kind);
        EXPECT_EQ(tried->compare(number), 0);
        // What is written reads back to the same value.
        EXPECT_EQ(Number::fromText(number.toString()).compare(number), 0);
    }
    EXPECT_EQ(Number::fromText("1.000000000000000000000e302").toString(), "1" + std::string(302, '0'));
}

TEST(NumberParser, literalsBeyondBigNumbers) {
    struct Case {
        std::string text;
        const char* written;
    };
    const std::vector<Case> cases = {
        {"1e2147483647", "Infinity"},
        {"-1e999999999999999999999999", "-Infinity"},
        {"1e-2147483648", "0"},
        {"-1e-999999999999999999", "-0"},
        {"123456789012345678901e400000000", "Infinity"},
        {"1e" + std::string(100000, '9'), "Infinity"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 40));
        const Number number = Number::fromText(c.text);
        EXPECT_EQ(number.kind(), NumberKind::Big);
        EXPECT_EQ(number.toString(), c.written);
        EXPECT_FALSE(Number::tryParse(c.text).has_value());
    }
    // The last ones that are held.
    for (const char* text : {"1e+323228496", "1e-323228496"}) {
        const std::optional<Number> number = Number::tryParse(text);
        ASSERT_TRUE(number.has_value());
        EXPECT_EQ(number->toString(), text);
    }
    // Zero is a zero at any length.
    EXPECT_TRUE(Number::tryParse(std::string(50, '0')).has_value());
    EXPECT_TRUE(Number::tryParse("0." + std::string(50, '0') + "e-99999999999").has_value());
}

TEST(NumberParser, everyLiteralOf300DigitsIsKept) {
    std::uint64_t state = 42;
    const auto next = [&state](std::uint64_t end) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return (state >> 33) % end;
    };
    for (int i = 0; i < 500; ++i) {
        const std::size_t length = i < 20 ? 300 : 21 + next(280);
        std::string digits(1, static_cast<char>('1' + next(9)));
        while (digits.size() < length)
            digits.append(next(6) == 0 ? next(30) : 1, static_cast<char>('0' + next(10)));
        digits.resize(length);
        digits.back() = static_cast<char>('1' + next(9));
        std::string text = next(2) == 0 ? "-" : "";
        const std::size_t point = next(length);
        text += digits.substr(0, point);
        if (point == 0)
            text += '0';
        if (next(3) != 0) {
            text += '.';
            text.append(point == 0 ? next(6) : 0, '0');
        }
        text += digits.substr(point);
        // Without a point the zero in front would not be written.
        if (text.find('.') == std::string::npos && point == 0)
            continue;
        EXPECT_EQ(Number::fromText(text).toString(), text);
    }
}

// Millions of digits, where anything that grows with their square would not come back in time.
TEST(NumberParser, longLiterals) {
    constexpr std::size_t million = 1000000;
    const std::string zeros(million, '0');
    const std::string nines(million, '9');
    struct Case {
        std::string text;
        std::string written;
    };
    const std::vector<Case> cases = {
        {"1" + zeros, "1e+1000000"},
        {nines, "1e+1000000"},
        {"0." + nines, "1"},
        {"1." + zeros + "1", "1"},
        {"0." + zeros + "1", "1e-1000001"},
        {zeros + "7", "7"},
        {zeros + "." + zeros, "0"},
        {"1" + zeros + "e-1000000", "1"},
        {"12.5" + zeros, "12.5"},
        {nines + "e322000000", "1e+323000000"},
        {nines + "e400000000", "Infinity"},
        {nines + "e-600000000", "0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 5));
        EXPECT_EQ(Number::fromText(c.text).toString(), c.written);
    }
}

} // namespace
} // namespace specloom::number
