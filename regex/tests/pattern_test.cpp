#include "regex/pattern.h"
#include "test_support/texts.h"

#include <gtest/gtest.h>

#if defined(__GNUC__) && !defined(__clang__) && __GNUC__ < 13
// g++ 12 with sanitizers takes a part of the library's own automaton for uninitialized (GCC bug 105562).
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#endif

#include <random>  // std::mt19937
#include <regex>   // std::regex, on texts made here
#include <string>  // std::string
#include <thread>  // std::jthread
#include <utility> // std::pair
#include <vector>  // std::vector

namespace specloom::regex {

namespace {

using Outcome = Pattern::Outcome;
using test_support::repeated;

Outcome search(const std::string& pattern, std::string_view text) {
    return Pattern(pattern).search(text);
}

/// Through the tables of the lookarounds instead of the remembered states.
Outcome searchUncached(const std::string& pattern, std::string_view text) {
    return Pattern("(?:" + pattern + ")(?=)").search(text);
}

} // namespace

TEST(Pattern, matchesAnywhereInTheText) {
    struct Case {
        std::string pattern;
        std::vector<std::string> matches;
        std::vector<std::string> others;
    };
    const std::vector<Case> cases = {
        // Texts at the ends, literals.
        {"^x-", {"x-", "x-y"}, {"", "ax-", "x"}},
        {"-x$", {"-x", "y-x"}, {"-xa", "-x\n"}},
        {"^été$", {"été"}, {"étés", "ete"}},
        {"\xEF\xBF\xBD", {"\xEF\xBF\xBD", "a\xFFz", "\xC3"}, {"é"}},
        {"^(?:queued|build)|deploy$", {"queued!", "build", "a deploy"}, {"a build", "deploys"}},
        {".^", {}, {"", "a", "a\n"}},
        {"^(x|yé)", {"x", "yéz"}, {"", "ax", "y"}},
        {"^(?:x|y|)$", {"", "x", "y"}, {"xy"}},
        {"^a-.*", {"a-", "a-\n"}, {"a", "b-"}},
        {".*a?b+$|x", {"b", "cbb", "xa"}, {"", "ba"}},
        {".*\\.json$", {".json", "a.json"}, {"json", "a.jsonx"}},
        {"^\\d{1,3}$", {"1", "123"}, {"", "1234", "a", "\xD9\xA0"}},
        {"^\\0", {std::string(1, '\0')}, {"", "0"}},
        // Repetition.
        {"^(?:ab){2,3}?$", {"abab", "ababab"}, {"ab", "abababab", ""}},
        {"^a{2,}b{0}c{1}$", {"aac", "aaaac"}, {"ac", "aabc"}},
        {"^a{0,99999999999}$", {"", "aa"}, {"b"}},
        {"^(?:a?){3}(?:){4000000000}$", {"", "aaa"}, {"aaaa"}},
        {"^(?:[a-z]+-?)*$", {"", "a-b-", "abc"}, {"-a", "a--b"}},
        // Characters by their numbers and names.
        {"^\\x41\\u0042\\u{43}\\u{1F600}\\uD83D\\uDE00\\cJ\\0$", {std::string("ABC😀😀\n\0", 13)}, {"ABC"}},
        {"^\\uD83D", {}, {"😀"}},
        {"^[\\uD83D\\uDE00-\\u{1F64F}]$", {"😀", "🙏"}, {"🚀", "\xF0\x9F\x98"}},
        {"^.$", {"😀", "é", "\xFF", "\t"}, {"\n", "\r", "\xE2\x80\xA8", "ab", "\xC3\xC3"}},
        {"^\\t\\n\\v\\f\\r[\\b]$", {"\t\n\v\f\r\b"}, {}},
        // Classes.
        {"^[]$|^[^]$", {"a", "\n", "😀"}, {"", "ab"}},
        {"^[a-c-]+$", {"a-c"}, {"d"}},
        {"^[-a]+$", {"a-"}, {"b"}},
        {"^[^a-cé]$", {"d", "è"}, {"a", "é"}},
        {"^[\\w-.]+$", {"a-b.c_1"}, {"a/b", "a,"}},
        {"^[\\]\\\\^\\-]+$", {"]\\^-"}, {"["}},
        {"^\\d\\D\\w\\W$",
         {"1aa-", "0\xD9\xA0_é"},
         {"\xD9\xA0"
          "aa-"}},
        {"^\\s+$",
         {" \t\n\v\f\r\xC2\xA0\xEF\xBB\xBF\xE2\x80\xA8\xE3\x80\x80"},
         {"", "\xE1\xA0\x8E", "\xE2\x80\x8B"}},
        // Properties.
        {"^\\p{L}+$", {"aÉЖ中"}, {"1", "a "}},
        {"^\\p{Lu}\\p{Lowercase_Letter}\\p{gc=Nd}\\p{digit}\\P{General_Category=Letter}$",
         {"Éa1\xD9\xA0-"},
         {"Aa11a"}},
        {"^\\p{LC}\\p{Lo}$", {"a中"}, {"中a"}},
        {"^\\p{Script=Greek}\\p{sc=Cyrl}[\\p{Script=Han}\\P{ASCII}]$", {"αЖ中", "αЖé"}, {"aЖ中", "αЖa"}},
        {"^\\p{scx=Deva}$", {"\xE0\xA5\xA4", "क"}, {"a"}},
        {"^\\p{Script=Devanagari}$", {"क"}, {"\xE0\xA5\xA4"}},
        {"^\\p{Any}\\p{Assigned}\\p{Alphabetic}\\p{Uppercase}\\p{Emoji_Presentation}$",
         {"\naàÀ😀"},
         {"aaaa1"}},
        {"^\\p{Cn}$", {"\xF4\x8F\xBF\xBF"}, {"a"}},
        // Words.
        {"\\bcat\\b", {"cat", "a cat.", "-cat"}, {"cats", "_cat", "concat"}},
        {"\\Bcat\\B", {"concats"}, {"cat", "cats"}},
        {"é\\b", {"éa"}, {"é", "é "}},
        // Groups and lookarounds.
        {"^(?<year>\\d{4})-(?<$mö_1>\\d\\d)$", {"2024-01"}, {"2024-1"}},
        {"^(?=.*\\d)(?=.*[a-z]).{4,}$", {"abc1", "1éaé"}, {"abcd", "1a", "1234"}},
        {"^(?:(?!--).)+$", {"a-b", "-"}, {"", "a--b"}},
        {"(?<=\\$)\\d+(?!\\.)\\b", {"a $42"}, {"42", "$4.2"}},
        {"(?<!a|^)b", {"cb", "bb"}, {"b", "ab"}},
        {"^(?=(?!a(?=b)).)\\w+$", {"ac", "b"}, {"ab", "abc"}},
        {"(?<=^(?=a+$)a*)b|(?<=(?<!x)y)z", {"yz"}, {"aab", "xyz"}},
        {"^(?=a)*b(?!c){2}$", {"b"}, {"bc"}},
        // What flag "u" forbids and documents have.
        {"^[a-zA-Z0-9/\\+\\.\\-_]*$", {"a+b"}, {"a b"}},
        {"^\\_\\@\\-\\é\\ $", {"_@-é "}, {}},
        {"^]}{a}{$", {"]}{a}{"}, {}},
    };
    for (const auto& [pattern, matches, others] : cases) {
        SCOPED_TRACE(pattern);
        for (const std::string& text : matches) {
            EXPECT_EQ(search(pattern, text), Outcome::Match) << text;
            EXPECT_EQ(searchUncached(pattern, text), Outcome::Match) << text;
        }
        for (const std::string& text : others) {
            EXPECT_EQ(search(pattern, text), Outcome::NoMatch) << text;
            EXPECT_EQ(searchUncached(pattern, text), Outcome::NoMatch) << text;
        }
    }
}

TEST(Pattern, saysWhatIsWrong) {
    struct Case {
        std::string pattern;
        std::string message;
        std::size_t offset;
    };
    const std::vector<Case> cases = {
        {"a**", "Nothing to repeat", 2},
        {"é|{2}", "Nothing to repeat", 3},
        {"^*", "Nothing to repeat", 1},
        {"(?<=a)?", "Nothing to repeat", 6},
        {"\\b+", "Nothing to repeat", 2},
        {"a{2,1}", "Numbers of a quantifier are out of order", 1},
        {"a{1", "Incomplete quantifier", 1},
        {"a{1,x}", "Incomplete quantifier", 1},
        {"a{,2}", "Quantifier has no lower bound", 1},
        {"a(b", "Unterminated group", 1},
        {"a)b", "Unmatched ')'", 1},
        {"(?i:a)", "Invalid group", 0},
        {"(?P<n>a)", "Invalid group", 0},
        {"(?<1n>a)", "Invalid name of a group", 0},
        {"(?<>a)", "Invalid name of a group", 0},
        {"(?<n", "Invalid name of a group", 0},
        {"x[a", "Unterminated character class", 1},
        {"[ab-", "Unterminated character class", 0},
        {"[ab-a]", "Range of a character class is out of order", 2},
        {"a\\", "Pattern ends with a backslash", 1},
        {"[\\", "Pattern ends with a backslash", 1},
        {"\\a", "Invalid escape", 0},
        {"^a\\Z", "Invalid escape", 2},
        {"\\c1", "Invalid escape", 0},
        {"\\x4", "Invalid escape", 0},
        {"\\u12", "Invalid escape", 0},
        {"\\u{110000}", "Invalid escape", 0},
        {"\\u{}", "Invalid escape", 0},
        {"\\uD83D\\u", "Invalid escape", 6},
        {"\\pL", "Invalid escape", 0},
        {"[\\p{Greek}]", "Unknown Unicode property", 1},
        {"\\p{Script=Latvian}", "Unknown Unicode property", 0},
        {"\\p{letter}", "Unknown Unicode property", 0},
        {"(a)\\1", "Backreferences are not supported", 3},
        {"(?<n>a)\\k<n>", "Backreferences are not supported", 7},
        {"[\\01]", "Octal escapes are not supported", 1},
        {"a\xFF", "Pattern is not UTF-8", 1},
        {"[\xED\xA0\x80]", "Pattern is not UTF-8", 1},
        {repeated("(", 100'000) + repeated(")", 100'000), "Pattern is nested too deeply", 250},
        {repeated("(?=", 100'000), "Pattern is nested too deeply", 750},
        {"(?:(?:a{1000}){1000}){1000}", "Pattern is too large", 14},
        {"x{1000000}", "Pattern is too large", 1},
        {"x{99999999999999999999,}", "Pattern is too large", 1},
        {"(?:a|b?){0,250000}", "Pattern is too large", 8},
        {repeated("a", 1'000'000), "Pattern is too large", 250'000},
        {repeated("()", 500'000), "Pattern is too large", 250'000},
        {repeated("[^a\xE4\xB8\x80]", 250'001), "Pattern is too large", 1'750'000},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.pattern.substr(0, 100));
        try {
            const Pattern pattern(each.pattern);
            ADD_FAILURE() << "is taken";
        } catch (const SyntaxError& error) {
            EXPECT_EQ(error.what(), each.message);
            EXPECT_EQ(error.offset(), each.offset);
        }
    }
}

TEST(Pattern, answersHostilePatternsInBoundedWork) {
    const std::string many = repeated("a", 1'000'000);
    std::string mixed;
    std::mt19937 random(1);
    for (std::size_t i = 0; i < 200'000; ++i)
        mixed += random() % 2 == 0 ? 'a' : 'b';
    std::string ideographs;
    for (char second = 0; second < 32; ++second) {
        for (char third = 0; third < 64; ++third)
            ideographs += {'\xE5', static_cast<char>('\x80' + second), static_cast<char>('\x80' + third)};
    }
    struct Case {
        std::string pattern;
        std::string text;
        Outcome outcome;
    };
    const std::vector<Case> cases = {
        {"(a+)+$", many + "!", Outcome::NoMatch},
        {"^(a|aa)+$", many, Outcome::Match},
        {"((a*)*)*b", many, Outcome::NoMatch},
        {"(.*a){20}b", many, Outcome::NoMatch},
        {"(?=.*b)(?<!a+)a", many, Outcome::NoMatch},
        {repeated("(", 250) + "a*" + repeated(")*", 250) + "$", many, Outcome::Match},
        {"^.{0,65535}$", many.substr(0, 65'535), Outcome::Match},
        {"^.{0,65535}$", many.substr(0, 65'536), Outcome::NoMatch},
        // More states than are remembered: they are forgotten and made again.
        {"[ab]*a[ab]{14}c", mixed + "b" + repeated("a", 14) + "c", Outcome::NoMatch},
        {"[ab]*a[ab]{14}c", mixed + "a" + repeated("b", 14) + "c", Outcome::Match},
        // More characters than rows of remembered states have room for.
        {"^(?:" + ideographs + ")+$", ideographs + ideographs, Outcome::Match},
        {"^(?:" + ideographs + ")+$", ideographs + "a", Outcome::NoMatch},
        {"(.{1,50000}b)+$", many, Outcome::TooCostly},
        {repeated("(?!b)", 1'000) + "c", many, Outcome::TooCostly},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.pattern.substr(0, 100));
        const Pattern pattern(each.pattern);
        EXPECT_EQ(pattern.search(each.text), each.outcome);
        EXPECT_EQ(pattern.search(each.text), each.outcome) << "the second time";
    }
}

TEST(Pattern, isSearchedWithByThreadsAtOnce) {
    const Pattern pattern("^(?:[a-c]{2}|[d-f]{3})*$");
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&pattern, i] {
            const std::string text = repeated("abdef", static_cast<std::size_t>(i));
            for (int round = 0; round < 20'000; ++round) {
                EXPECT_EQ(pattern.search(text), Outcome::Match);
                EXPECT_EQ(pattern.search(text + "a"), Outcome::NoMatch);
            }
        });
    }
}

/// Expressions of what std::regex and this matcher understand alike.
class RandomPattern {
  public:
    explicit RandomPattern(std::uint32_t seed) : random_(seed) {}

    std::string disjunction(int depth) {
        std::string result = alternative(depth);
        while (below(4) == 0)
            result += "|" + alternative(depth);
        return result;
    }

    std::string text() {
        std::string result;
        for (std::size_t i = below(9); i > 0; --i)
            result += "aabc_- 1"[below(8)];
        return result;
    }

  private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    std::string pick(const std::vector<std::string>& texts) { return texts[below(texts.size())]; }

    std::string alternative(int depth) {
        std::string result;
        for (std::size_t i = below(4); i > 0; --i)
            result += term(depth);
        return result;
    }

    std::string term(int depth) {
        const std::size_t kind = below(10);
        // Inside of lookaheads libstdc++ takes their place for the beginning of the text.
        if (kind == 0 && !inLookahead_)
            return pick({"^", "$", "\\b", "\\B"});
        if (kind == 1 && depth > 0 && !inLookahead_) {
            inLookahead_ = true;
            const std::string body = disjunction(depth - 1);
            inLookahead_ = false;
            return pick({"(?=", "(?!"}) + body + ")";
        }
        const std::string quantifier =
            below(2) == 0 ? "" : pick({"*", "+", "?", "{2}", "{0,2}", "{1,}", "*?", "{1,3}?"});
        if (kind < 4 && depth > 0)
            return pick({"(", "(?:"}) + disjunction(depth - 1) + ")" + quantifier;
        return pick({"a", "b", "c", "_", "-", " ", ".", "\\d", "\\w", "\\W", "\\s", "[ab]", "[^a]", "[a-c_]",
                     "[^\\s1]"}) +
               quantifier;
    }

    std::mt19937 random_;
    bool inLookahead_ = false;
};

TEST(Pattern, agreesWithTheStandardLibrary) {
    constexpr std::uint32_t seed = 20'231;
    SCOPED_TRACE(seed);
    RandomPattern random(seed);
    std::size_t matches = 0;
    for (int i = 0; i < 1'500; ++i) {
        const std::string source = random.disjunction(3);
        SCOPED_TRACE(source);
        const std::regex reference(source);
        const Pattern pattern(source);
        for (int j = 0; j < 6; ++j) {
            const std::string text = random.text();
            const Outcome expected = std::regex_search(text, reference) ? Outcome::Match : Outcome::NoMatch;
            matches += expected == Outcome::Match ? 1 : 0;
            EXPECT_EQ(pattern.search(text), expected) << text;
            EXPECT_EQ(searchUncached(source, text), expected) << text;
        }
    }
    EXPECT_GT(matches, 1'000U);
}

} // namespace specloom::regex
