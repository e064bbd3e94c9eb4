#include "foundation/uri_template.h"
#include "test_support/failure.h"
#include "test_support/texts.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom {
namespace {

std::string errorOf(const std::string& text, const UriTemplateVariables& variables = {}) {
    try {
        static_cast<void>(UriTemplate(text).expand(variables));
        return "";
    } catch (const UriTemplateError& error) {
        const std::string prefix = "Invalid URI template at byte " + std::to_string(error.offset()) + ": ";
        const std::string message = error.what();
        EXPECT_EQ(message.substr(0, prefix.size()), prefix);
        return std::to_string(error.offset()) + " " + message.substr(prefix.size());
    }
}

TEST(UriTemplate, tellsEachFaultAndItsPlace) {
    const std::string utf8 = " the text is not UTF-8";
    const std::string literal = " this character may not stand in a URI";
    const std::string percent = " two hexadecimal digits are expected behind '%'";
    const std::string unclosed = " '{' without a '}' behind it";
    const std::string missing = " a variable name is expected";
    const std::string character = " this character may not stand in a variable name";
    const std::string dot = " a dot may only stand between two other characters of a variable name";
    const std::string prefix = " a prefix length from 1 to 9999 is expected";
    const std::string behind = " ',' or '}' is expected behind a modifier";
    struct Row {
        std::string text, error;
    };
    const std::vector<Row> rows = {
        {"", ""},
        {"'%2f'~\xc3\xa9{a.b,%41_9*}{&x:9999}", ""},
        {"\xc2\xa0\xee\x80\x80\xf3\xa1\x80\x80", ""},
        {"ab\xc3", "2" + utf8},
        {"{x}\xed\xa0\x80", "3" + utf8},
        {"a b", "1" + literal},
        {"a\x7f", "1" + literal},
        {std::string("a\0", 2), "1" + literal},
        {"a\\b", "1" + literal},
        {"a\xc2\x80", "1" + literal},
        {"\xef\xb7\x90", "0" + literal},
        {"\xef\xbf\xb0", "0" + literal},
        {"\xf0\x9f\xbf\xbe", "0" + literal},
        {"\xf3\xa0\x80\x80", "0" + literal},
        {"x%4", "1" + percent},
        {"x%4g", "1" + percent},
        {"{%4}", "1" + percent},
        {"{a}}", "3 '}' without a '{' before it"},
        {"/{", "1" + unclosed},
        {"/{?", "1" + unclosed},
        {"/{a.", "1" + unclosed},
        {"/{a,", "1" + unclosed},
        {"/{a:1", "1" + unclosed},
        {"/{a*", "1" + unclosed},
        {"{|x}", "1 this operator is reserved for extensions"},
        {"{}", "1" + missing},
        {"{+:1}", "2" + missing},
        {"{x,,y}", "3" + missing},
        {"{{x}}", "1" + character},
        {"{x\xc3\xa9}", "2" + character},
        {"{?.x}", "2" + dot},
        {"{x..y}", "3" + dot},
        {"{x.,y}", "2" + dot},
        {"{x:}", "3" + prefix},
        {"{x:0}", "3" + prefix},
        {"{x:10000}", "3" + prefix},
        {"{x*:1}", "3" + behind},
        {"{x:1*}", "4" + behind},
        {"{x:1x}", "4" + behind},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(errorOf(row.text), row.error);
        EXPECT_EQ(isValidUriTemplate(row.text), row.error.empty());
    }

    const std::string composite = " a prefix length does not apply to lists and associative arrays";
    EXPECT_EQ(errorOf("/{a,l:3}", {{"l", UriTemplateList{"x"}}}), "5" + composite);
    EXPECT_EQ(errorOf("{;p:3}", {{"p", UriTemplatePairs{{"x", "y"}}}}), "3" + composite);
    EXPECT_EQ(errorOf("{l:3}", {{"l", UriTemplateList{}}}), "");
}

TEST(UriTemplate, expands) {
    const UriTemplateVariables variables = {
        {"e", "\xc3\xa9%C3%A9%2F\xf0\x9d\x84\x9e"},
        {"broken", "\xc3(\x80\xff"},
        {"empty", ""},
        {"undefined", {}},
        {"list", UriTemplateList{"", "a/b", ""}},
        {"blank", UriTemplateList{""}},
        {"pairs", UriTemplatePairs{{"z", "1&2"}, {"a[b]&", ""}}},
        {"%41", "encoded name"},
    };
    struct Row {
        std::string text, result;
    };
    const std::vector<Row> rows = {
        // A character is a code point, and where triplets stay they make characters too.
        {"{e:1}", "%C3%A9"},
        {"{e:3}", "%C3%A9%25C"},
        {"{+e:1}", "%C3%A9"},
        {"{+e:2}", "%C3%A9%C3%A9"},
        {"{+e:3}", "%C3%A9%C3%A9%2F"},
        {"{+e:4}", "%C3%A9%C3%A9%2F%F0%9D%84%9E"},
        {"{broken}{+broken:1}", "%C3%28%80%FF%C3"},
        // Empty is not undefined.
        {"{undefined}{?undefined,nothing}", ""},
        {"{?undefined,empty,undefined,blank}", "?empty=&blank="},
        {"{;empty,blank}{;blank*}", ";empty;blank=;blank"},
        {"{/empty,empty}{#empty}", "//#"},
        {"{/list*}{.list}{?list*}", "//a%2Fb/.,a%2Fb,?list=&list=a%2Fb&list="},
        // Names of pairs are encoded as values, but as literals where they stand for the variable's name.
        {"{pairs}", "z,1%262,a%5Bb%5D%26,"},
        {"{/pairs*}", "/z=1%262/a%5Bb%5D%26="},
        {"{?pairs}", "?pairs=z,1%262,a%5Bb%5D%26,"},
        {"{?pairs*}", "?z=1%262&a[b]&="},
        {"{;pairs*}", ";z=1%262;a[b]&"},
        {"{#pairs*}", "#z=1&2,a[b]&="},
        {"\xc3\xa9?[x]=%c3{&%41}{A}", "%C3%A9?[x]=%c3&%41=encoded%20name"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(UriTemplate(row.text).expand(variables), row.result);
    }
}

std::string repeated(const std::string& unit) {
    return test_support::repeated(unit, (1 << 20) / unit.size() + 1);
}

// Anything but one pass over these would take hours.
TEST(UriTemplate, takesHostileTexts) {
    const std::string letters = repeated("a");
    for (const std::string unit : {"{", "}", "%", "{a", "{a,", "{a.", ".{", "{%41", "{a:1", "\xff", "{a}{"}) {
        SCOPED_TRACE(unit);
        EXPECT_FALSE(isValidUriTemplate(repeated(unit)));
        EXPECT_THROW(UriTemplate{repeated(unit)}, UriTemplateError);
    }
    EXPECT_FALSE(isValidUriTemplate("{" + letters));
    EXPECT_FALSE(isValidUriTemplate("{" + repeated("a,")));
    EXPECT_FALSE(isValidUriTemplate("{a:" + repeated("1") + "}"));

    const std::string many = repeated("{?a:1,b*}");
    EXPECT_EQ(UriTemplate(many).expand({{"a", letters}}).size(), many.size() / 9 * 4);
    EXPECT_EQ(UriTemplate("{" + letters + "}").expand({{letters, repeated("%")}}).size(), letters.size() * 3);
    EXPECT_EQ(UriTemplate("{+a:9999}").expand({{"a", repeated("\x80")}}).size(), letters.size() * 3);
    EXPECT_EQ(UriTemplate("{+a:9999}").expand({{"a", repeated("%C3%A9")}}).size(), 9999U * 6);
    EXPECT_EQ(UriTemplate(letters).expand({}), letters);
}

TEST(UriTemplate, keepsItsResultBelowTheLimit) {
    const UriTemplateVariables variables = {{"a", "123%"}};
    EXPECT_EQ(UriTemplate("x{a}").expand(variables, 7), "x123%25");
    EXPECT_EQ(
        test_support::failureOf<std::length_error>([&] { return UriTemplate("x{a}").expand(variables, 6); }),
        "URI template expands to more than 6 bytes");
    EXPECT_THROW(static_cast<void>(UriTemplate(repeated("{a}")).expand({{"a", repeated("a")}})),
                 std::length_error);
}

} // namespace
} // namespace specloom
