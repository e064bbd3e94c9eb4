#include "egret/strings.h"
#include "regex/pattern.h"
#include "test_support/random_patterns.h"
#include "test_support/texts.h"

#include <array>  // std::array
#include <random> // std::mt19937_64
#include <set>    // std::set

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::egret {
namespace {

using testing::ElementsAre;
using Texts = std::vector<std::string>;

constexpr std::size_t longestTried = 5;

Draw drawing(std::mt19937_64& numbers) {
    return [&numbers](std::uint64_t bound) { return numbers() % bound; };
}

bool matches(const std::string& pattern, const std::string& text) {
    return regex::Pattern(pattern).search(text) == regex::Pattern::Outcome::Match;
}

/// All texts of the characters that random patterns tell apart.
const std::vector<Texts>& textsByLength() {
    static const std::vector<Texts> all = [] {
        std::vector<Texts> result{{""}};
        while (result.size() <= longestTried) {
            Texts longer;
            for (const std::string& text : result.back()) {
                for (const char character : {'a', 'b', 'c', '-', '.'})
                    longer.push_back(text + character);
            }
            result.push_back(std::move(longer));
        }
        return result;
    }();
    return all;
}

} // namespace

TEST(Strings, goThroughEachEdge) {
    struct Case {
        std::string pattern;
        Lengths lengths;
        Texts expected;
    };
    const std::vector<Case> cases = {
        {"^abc$", {}, {"abc"}},
        {"", {}, {""}},
        {"a|bc|", {}, {"", "a", "bc"}},
        {"^a*$", {}, {"", "a", "aa"}},
        {"^a+b?$", {}, {"a", "ab", "aa"}},
        {"^a{2,4}$", {}, {"aa", "aaa", "aaaa"}},
        {"^a{2,4}$", {3, 3}, {"aaa"}},
        {"^a{3}$", {}, {"aaa"}},
        {"^(?:ab|c)*d$", {}, {"d", "cd", "ccd", "abd"}},
        {"^(?:a*)*$", {}, {"", "a", "aa"}},
        {"^(?:aaa)*$", {4, 8}, {"aaaaaa"}},
        {"^(?:a|b)$|^(?:cd|e)$", {2, 2}, {"cd"}},
        {"a$b|c", {}, {"c"}},
        {"\\Ba|b\\b", {0, 1}, {"b"}},
        {"foo(?=bar)", {}, {"foobar"}},
        {"^(?=a)(?:a|b)$", {}, {"a"}},
        {"^(?!a)(?:a|b)$", {}, {"b"}},
        {"^(?:a|b)(?:c|d)(?<!ac|b.)$", {}, {"ad"}},
        {"(?<=x)y", {}, {"xy"}},
        {"^\\uD83D\\uDE00{1,2}$", {}, {"😀", "😀😀"}},
        {"^[\\uD83D]$|^é$", {}, {"é"}},
        // Nothing matches.
        {"a$b", {}, {}},
        {"[^\\s\\S]", {}, {}},
        {"^(?!x)x", {}, {}},
        {".^", {}, {}},
        {"^a$", {2, 9}, {}},
        {"a", {5, 4}, {}},
        {"^(?:aaa)*$", {1000001, 1000001}, {}},
        {"\\uD83D", {}, {}},
    };
    std::mt19937_64 numbers;
    for (const auto& [pattern, lengths, expected] : cases) {
        SCOPED_TRACE(pattern);
        const Strings strings(pattern);
        EXPECT_EQ(strings.covering(lengths), expected);
        EXPECT_EQ(strings.random(lengths, drawing(numbers)).has_value(), !expected.empty());
    }
}

TEST(Strings, existWhereAnyTextMatches) {
    test_support::RandomPatterns patterns(1);
    std::mt19937_64 numbers(1);
    for (int i = 0; i < 400; ++i) {
        const std::string source = patterns.next();
        SCOPED_TRACE(source);
        const regex::Pattern pattern(source);
        const Strings strings(source);
        const auto isMatched = [&pattern](const std::string& text) {
            return pattern.search(text) == regex::Pattern::Outcome::Match;
        };
        for (std::size_t length = 0; length <= longestTried; ++length) {
            const Lengths lengths{length, length};
            const bool exists = std::ranges::any_of(textsByLength()[length], isMatched);
            const auto drawn = strings.random(lengths, drawing(numbers));
            ASSERT_EQ(drawn.has_value(), exists) << length;
            ASSERT_EQ(!strings.covering(lengths).empty(), exists) << length;
            ASSERT_TRUE(!exists || isMatched(*drawn)) << *drawn;
        }
    }
}

TEST(Strings, haveTheLengthsThatAreAskedFor) {
    struct Case {
        std::string pattern;
        Lengths lengths;
        std::vector<std::size_t> expected; ///< those that there are, of ASCII
    };
    const std::vector<Case> cases = {
        {"^[a-z]{3}(-[0-9]{4}){0,5}$", {13}, {13, 18, 23, 28}},
        {"^(?:[ab]{7}|[cd]{11}){2}$", {15}, {18, 22}},
        {"^[^@]+@[^@]+$", {40, 40}, {40}},
        {"^(?=(?:...)*$)(?=(?:.....)*$)[xy]+$", {1000, 1005}, {1005}},
        {"^([A-Fa-f0-9]{2}){1,5000}$", {9999}, {10000}},
        {".{0,65535}", {65535, 65535}, {65535}},
        {"^([0-9a-z]([0-9a-z-]{0,61}[0-9a-z])?\\.)+$", {1000000, 1000000}, {1000000}},
        {"X_", {12, 12}, {12}},
        {"^X", {12, 12}, {12}},
        {"X$", {12, 12}, {12}},
    };
    std::mt19937_64 numbers(2);
    for (const auto& [pattern, lengths, expected] : cases) {
        SCOPED_TRACE(pattern);
        const Strings strings(pattern);
        for (int i = 0; i < 8; ++i) {
            const auto text = strings.random(lengths, drawing(numbers));
            ASSERT_TRUE(text);
            EXPECT_TRUE(matches(pattern, *text));
            EXPECT_THAT(expected, testing::Contains(text->size()));
        }
    }
}

TEST(Strings, areSpreadOverTheAlternatives) {
    std::mt19937_64 numbers(3);
    const Strings strings("^(?:a|b|c|d(?:e|f)|g{100})?$");
    std::set<std::string> met;
    for (int i = 0; i < 200; ++i)
        met.insert(strings.random({}, drawing(numbers)).value());
    EXPECT_THAT(met, ElementsAre("", "a", "b", "c", "de", "df", std::string(100, 'g')));
}

TEST(Strings, areLegible) {
    struct Case {
        std::string pattern;
        std::string like; ///< what each of them matches
    };
    const std::vector<Case> cases = {
        {"^.{4,9}$", "^[a-z0-9]+$"},
        {"^[^,\\s]{6}$", "^[bcdfghklmnprstvw][a-z0-9]+$"},
        {"^[A-Za-z]{6}$", "^(?:[bcdfghklmnprstvw][aeiou]){3}$"},
        {"^[A-Z]{4}$", "^(?:[BCDFGHKLMNPRSTVW][AEIOU]){2}$"},
        {"^\\W$", "^[!-/:-@\\[-`{-~]$"},
        {"^\\s$", "^ $"},
        {"^(?=.*\\d)(?=.*[a-z]).{4,}$", "^[A-Za-z0-9]+$"},
        {"^[^\\0-\\x7F]$", "^\\p{L}$"},
        {"^\\p{Script=Greek}\\p{Lu}$", "^[\\u0370-\\u1FFF][A-Z]$"},
    };
    std::mt19937_64 numbers(4);
    for (const auto& [pattern, like] : cases) {
        const Strings strings(pattern);
        for (int i = 0; i < 50; ++i) {
            const auto text = strings.random({}, drawing(numbers));
            ASSERT_TRUE(text) << pattern;
            EXPECT_TRUE(matches(like, *text)) << pattern << ": " << *text;
        }
    }
}

/// Where every way is too costly to be looked at to its end.
TEST(Strings, areBounded) {
    const std::array patterns = {
        test_support::repeated("(?:a|b|c|d|e){0,40}", 500),
        test_support::repeated("(?=.{0,3000}x)", 30) + "[xy]{4}",
        test_support::repeated("(?!.{0,3000}x)", 30) + "[xy]{4}",
        test_support::repeated("(?=(?!", 100) + "x" + test_support::repeated("))", 100),
        test_support::repeated("(?:", 200) + "x" + test_support::repeated(")*", 200),
        std::string("(?:[ab]*a[ab]{0,200}){0,300}"),
        std::string("(?<=a.{0,400})(?<!b.{0,400}c)x"),
    };
    std::mt19937_64 numbers(5);
    for (const std::string& pattern : patterns) {
        const Strings strings(pattern);
        for (const std::string& text : strings.covering())
            EXPECT_TRUE(matches(pattern, text));
        const auto text = strings.random({5000}, drawing(numbers));
        EXPECT_TRUE(!text || (text->size() >= 5000 && matches(pattern, *text)));
    }
}

} // namespace specloom::egret
