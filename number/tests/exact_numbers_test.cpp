#include "number/exact_numbers.h"

#include <set>    // std::set
#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::number {
namespace {

/// Literals of one value in each line, and no two lines of one value.
const std::vector<std::vector<std::string>> valuesByLine = {
    {"0", "-0", "0.0", "-0.0", "0e5", "0.0000000000000000000000000"},
    {"1", "1.0", "10e-1", "1.0000000000000000000000000", "0.0000000000000000000000001e25"},
    {"-1", "-1.0", "-1.0000000000000000000000000"},
    {"0.1", "1e-1", "0.1000000000000000000000000", "100000000000000000000000e-24"},
    {"0.1000000000000000000000001"},
    {"0.1000000000000000000000002"},
    {"0.5", "0.50000000000000000000000"},
    {"9007199254740992", "9007199254740992.0"},
    {"9007199254740993", "9007199254740993.00000000000000000000"},
    {"18446744073709551615", "18446744073709551615.000000"},
    {"18446744073709551616", "18446744073709551616.000000"},
    {"-9223372036854775808", "-9223372036854775808.0000000000"},
    {"1e19", "10000000000000000000", "10000000000000000000.00000000000"},
    {"-1e19", "-10000000000000000000.00000000000"},
    {"1e23", "100000000000000000000000"},
    {"1e300", "1" + std::string(300, '0')},
    {"1e5000", "10e4999"},
    {"-1e5000"},
    {"1e-5000", "0.1e-4999"},
};

TEST(ExactNumbers, hashAlikeExactlyWhereTheyAreEqual) {
    std::set<std::uint64_t> hashes;
    for (const auto& line : valuesByLine) {
        const Number first = Number::fromText(line.front());
        EXPECT_TRUE(hashes.insert(hashExactly(first)).second) << line.front();
        for (const std::string& text : line) {
            const Number number = Number::fromText(text);
            EXPECT_EQ(compareExactly(first, number), 0) << text;
            EXPECT_EQ(hashExactly(first), hashExactly(number)) << text;
        }
    }
}

} // namespace
} // namespace specloom::number
