// What foreign texts become before they reach a person or a log.

#include "foundation/escapes.h"
#include "foundation/message.h"
#include "foundation/printable.h"
#include "foundation/utf8.h"
#include "test_support/texts.h"

#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom {
namespace {

using test_support::repeated;

using namespace std::string_literals;

struct TextRow {
    std::string text;
    std::string expected;
};

TEST(Printable, leavesNothingThatActs) {
    const std::vector<TextRow> rows = {
        {"", ""},
        {"plain \\ [x](y) # ## a::b", "plain \\ [x](y) # ## a::b"},
        {"H\u00e4fen \u6e2f \U0001F6A2 \u00a0\u05d0\u200f",
         "H\u00e4fen \u6e2f \U0001F6A2 \u00a0\u05d0\u200f"},
        {"a\tb\r\nc\0d"s, "a\\tb\\r\\nc\\u0000d"},
        {"\x1b[1m\x7f \u0085\u009b2J", "\\u001b[1m\\u007f \\u0085\\u009b2J"},
        {"\u2027\u2028\u2029\u202a\u202e\u202f", "\u2027\\u2028\\u2029\\u202a\\u202e\u202f"},
        {"\u2065\u2066\u2069\u206a \ufffd\ufffe\uffff", "\u2065\\u2066\\u2069\u206a \ufffd\\ufffe\\uffff"},
        {"\xff \xed\xa0\x80 \xc3", "\ufffd \ufffd \ufffd"},
        {"##[group] a ##VSO[task.complete] ##x[y] ###[z] #[ ## [",
         "##\\u005bgroup] a ##VSO\\u005btask.complete] "
         "##x\\u005by] ###\\u005bz] #[ ## ["},
        {"::error::x", "::error::x"},
    };
    for (const TextRow& row : rows) {
        EXPECT_EQ(printable(row.text), row.expected);
        EXPECT_EQ(printable(row.expected), row.expected);
    }
}

TEST(Printable, knowsWhatActsAtTheBeginningOfALine) {
    const std::vector<TextRow> rows = {
        {"::error::x", "\\u003a:error::x"},
        {" \u00a0\u3000::error::x", " \u00a0\u3000\\u003a:error::x"},
        {":error", ":error"},
        {"a::b", "a::b"},
        {"\t::x", "\\t::x"},
        {"   ", "   "},
    };
    for (const TextRow& row : rows)
        EXPECT_EQ(printableAtLineStart(row.text), row.expected);
    EXPECT_EQ(printableLines("a\n::b\x1b\r\n\n"), "a\n\\u003a:b\\u001b\\r\n\n");
    EXPECT_EQ(printableLines(""), "");
}

TEST(Message, cleansEachTextThatEntersIt) {
    EXPECT_EQ(formatMessage("'{}' at ({}, {})\nfor {}", "a\n"s, 1, 2U, std::string_view("\x1b")).composed(),
              "'a\\n' at (1, 2)\nfor \\u001b");
    EXPECT_EQ(formatMessage("{} is bad", "::error::").composed(), "\\u003a:error:: is bad");
    EXPECT_EQ(formatMessage("{}{}{}", "##", "vso", "[x]").composed(), "##vso\\u005bx]")
        << "also when put together";
    EXPECT_EQ(Message(std::runtime_error("a\n\x1b")).composed(), "a\n\\u001b");
}

TEST(Message, cutsTextsThatNobodyReads) {
    for (const char* one : {"a", "\u00e4", "\U0001F6A2"}) {
        EXPECT_EQ(messageArgument(repeated(one, 1000)), repeated(one, 1000));
        EXPECT_EQ(messageArgument(repeated(one, 1001)), repeated(one, 1000) + "\u2026");
        EXPECT_EQ(messageArgument(repeated(one, 5000)), repeated(one, 1000) + "\u2026");
    }
    EXPECT_EQ(messageArgument(std::string(1 << 20, '\x80')), repeated("\ufffd", 1000) + "\u2026");
    EXPECT_EQ(messageArgument(std::string(1000, '\0')), repeated("\\u0000", 1000));
}

TEST(Escapes, keepTextsInTheirLanguage) {
    EXPECT_EQ(escapeTap("a # SKIP \\# b"), "a \\# SKIP \\\\\\# b");
    const std::vector<TextRow> markdown = {
        {"/pets/{pet_id}/*_x_?a=b#/c", "/pets/{pet_id}/\\*\\_x\\_?a=b#/c"},
        {"a@b.c @me @-x me@ @/", "a\\\\u0040b.c \\\\u0040me \\\\u0040-x me@ @/"},
        {"https://x.y wWw.x.y awww.x", "https\\\\u003a//x.y wWw\\\\u002ex.y awww.x"},
        {"#1 # a!2 !a gh-3 high-4", "\\\\u00231 # a\\\\u00212 !a gh\\\\u002d3 high-4"},
    };
    for (const TextRow& row : markdown)
        EXPECT_EQ(escapeMarkdown(row.text), row.expected);
}

TEST(Utf8, countsAndAppends) {
    EXPECT_EQ(columnsOf("a\u00e4\u20ac\U0001F600"), 4U);
    EXPECT_EQ(bytesOfColumns("a\u00e4\u20ac\U0001F600", 2), 3U);
    EXPECT_EQ(bytesOfColumns("a\u00e4", 3), 3U);
    std::string text;
    for (const char32_t codePoint : {U'a', U'\u00e4', U'\u20ac', U'\U0001F600'})
        appendUtf8(codePoint, text);
    EXPECT_EQ(text, "a\u00e4\u20ac\U0001F600");
}

} // namespace
} // namespace specloom
