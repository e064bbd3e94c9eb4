#include "foundation/case_style.h"
#include "foundation/escapes.h"
#include "foundation/strings.h"
#include "foundation/unreachable.h"
#include "foundation/utf8.h"
#include "test_support/failure.h"

#include <iostream>  // std::cout
#include <limits>    // std::numeric_limits
#include <stdexcept> // std::invalid_argument, std::out_of_range
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>
#include <unistd.h> // dup2

using namespace std::string_literals;

namespace specloom {
namespace {

using test_support::failureOf;

TEST(Strings, caseConversions) {
    struct Row {
        std::string text, camel, constant, kebab, pascal, header, snake;
    };
    const std::vector<Row> rows = {
        {"", "", "", "", "", "", ""},
        {"pet", "pet", "PET", "pet", "Pet", "Pet", "pet"},
        {"petStore", "petStore", "PET_STORE", "pet-store", "PetStore", "Pet-Store", "pet_store"},
        {"pet_store", "petStore", "PET_STORE", "pet-store", "PetStore", "Pet-Store", "pet_store"},
        {"content-type", "contentType", "CONTENT_TYPE", "content-type", "ContentType", "Content-Type",
         "content_type"},
        {"XMLParser", "xMLParser", "XMLPARSER", "x-m-l-parser", "XMLParser", "X-M-L-Parser", "x_m_l_parser"},
        {"PetStoreAPI", "petStoreAPI", "PET_STORE_API", "pet-store-a-p-i", "PetStoreAPI", "Pet-Store-A-P-I",
         "pet_store_a_p_i"},
        {"/pets/{id}", "petsId", "PETS_ID", "pets-id", "PetsId", "Pets-Id", "pets_id"},
        // The dot ends a word for the last three only.
        {"a-b.c_d e", "aB.cDE", "A_B.C_D_E", "a-b-c-d-e", "AB.cDE", "A-B-C-D-E", "a_b_c_d_e"},
        {"x-B", "xB", "X_B", "x-b", "XB", "X-B", "x_b"},
        {"v2Beta3", "v2Beta3", "V2_BETA3", "v2-beta3", "V2Beta3", "V2-Beta3", "v2_beta3"},
        {"9lives", "9lives", "9LIVES", "9lives", "9lives", "9lives", "9lives"},
        {"__--", "", "", "", "", "", ""},
        {"$ref", "$ref", "", "ref", "$ref", "Ref", "ref"},
        // Bytes of 128 and above are neither letters nor separators.
        {"gr\xc3\xb6\xc3\x9f"
         "e",
         "gr\xc3\xb6\xc3\x9f"
         "e",
         "GR\xc3\xb6\xc3\x9f"
         "E",
         "gr-e",
         "Gr\xc3\xb6\xc3\x9f"
         "e",
         "Gr-E", "gr_e"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(convertCase(row.text, CaseStyle::Camel), row.camel);
        EXPECT_EQ(convertCase(row.text, CaseStyle::Const), row.constant);
        EXPECT_EQ(convertCase(row.text, CaseStyle::Kebab), row.kebab);
        EXPECT_EQ(convertCase(row.text, CaseStyle::Pascal), row.pascal);
        EXPECT_EQ(convertCase(row.text, CaseStyle::Header), row.header);
        EXPECT_EQ(convertCase(row.text, CaseStyle::Snake), row.snake);
    }
}

TEST(Strings, aStyleIsNamedInItself) {
    for (int i = 1; i <= 6; ++i) {
        const auto style = static_cast<CaseStyle>(i);
        const std::string name(caseStyleName(style));
        // Styles that split at capitals take the upper-case name apart letter by letter.
        const std::string words =
            style == CaseStyle::Pascal || style == CaseStyle::Camel ? name : toLowerCase(name);
        EXPECT_EQ(convertCase(words, style), name);
    }
}

TEST(StringsDeathTest, anUnknownStyleIsUnreachable) {
    const auto style = static_cast<CaseStyle>(7);
    EXPECT_DEATH(static_cast<void>(convertCase("a", style)),
                 "^Unreachable code: \\(case style\\) at .*:[0-9]+\n");
    EXPECT_DEATH(static_cast<void>(caseStyleName(style)),
                 "^Unreachable code: \\(case style\\) at .*:[0-9]+\n");
    EXPECT_DEATH(unreachable(nullptr, "f.cpp", 7), "^Unreachable code at f.cpp:7\n");
}

TEST(UnreachableDeathTest, aReportThatIsReadyGetsOutBefore) {
    EXPECT_DEATH(
        {
            dup2(STDERR_FILENO, STDOUT_FILENO);
            std::cout << "ready";
            unreachable(nullptr, "f.cpp", 7);
        },
        "readyUnreachable code at f.cpp:7");
}

TEST(Strings, compareIgnoreCase) {
    EXPECT_EQ(compareIgnoreCase("Content-TYPE", "content-type"), 0);
    EXPECT_LT(compareIgnoreCase("a", "B"), 0);
    EXPECT_GT(compareIgnoreCase("b", "A"), 0);
    EXPECT_LT(compareIgnoreCase("a", "A\x80"), 0);
    EXPECT_NE(compareIgnoreCase("\xc3\xa4", "\xc3\x84"), 0);
}

TEST(Strings, search) {
    EXPECT_EQ(findFirstNotOf("  a b", " "), 2);
    EXPECT_EQ(findFirstNotOf("  a b", " ", 3), 4);
    EXPECT_EQ(findFirstNotOf("    ", " "), -1);
    EXPECT_EQ(findFirstNotOf("a", " ", 5), -1);
    EXPECT_TRUE(startsWith("abc", "ab"s));
    EXPECT_FALSE(startsWith("ab", "abc"));
    EXPECT_TRUE(endsWith("abc", ""));
    EXPECT_FALSE(endsWith("abc", "ab"));
}

TEST(Strings, replace) {
    struct Row {
        std::string text, from, to, all, any;
    };
    const std::vector<Row> rows = {
        {"abcab", "ab", "x", "xcx", "xxcxx"},
        // What was put in is not looked at again.
        {"aaa", "aa", "a", "aa", "aaa"},
        {"abc", "", "x", "abc", "abc"},
        {"aXa", "X", "", "aa", "aa"},
        {"", "a", "b", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text + " " + row.from);
        std::string all = row.text;
        replaceAll(all, row.from, row.to);
        EXPECT_EQ(all, row.all);
        std::string any = row.text;
        replaceAny(any, row.from, row.to);
        EXPECT_EQ(any, row.any);
    }
}

TEST(Strings, trim) {
    EXPECT_EQ(trim(" \t\r\n\v\fa b\n"), "a b");
    EXPECT_EQ(trim(" \n "), "");
    EXPECT_EQ(trim("\xc2\xa0"), "\xc2\xa0"); // a no-break space is two bytes of 128 and above
}

TEST(Strings, identifiers) {
    for (const char* text : {"_1", "a", "A_9z"})
        EXPECT_TRUE(isIdentifier(text)) << text;
    for (const char* text : {"", "1a", "a-b", "a b", "$a", "\xc3\xa4"})
        EXPECT_FALSE(isIdentifier(text)) << text;
}

TEST(Strings, indentLines) {
    EXPECT_EQ(indentLines("a\nb\n", 2), "  a\n  b");
    EXPECT_EQ(indentLines("a\n\nb", 1), " a\n \n b");
    EXPECT_EQ(indentLines("\na", 1), " \n a");
    EXPECT_EQ(indentLines("", 3), "");
    EXPECT_EQ(indentLines("a\r\nb", 0), "a\r\nb");
}

TEST(Strings, trimLines) {
    EXPECT_EQ(trimLines("\n    a\n      b\n  c\n\n    d\n  "), "a\n  b\nc\n\nd");
    EXPECT_EQ(trimLines("  a\n    b\n"), "a\n    b"); // the first line has lost its indentation before
    EXPECT_EQ(trimLines("\n\ta \n b \r\n\r"), "\ta \n b \r");
    EXPECT_EQ(trimLines("  \n   "), "");
    EXPECT_EQ(trimLines(" a "), "a");
    EXPECT_EQ(trimLines(""), "");
}

TEST(Strings, escapes) {
    EXPECT_EQ(escapeHtml("<a href=\"x\">{b & c}</a>'"),
              "&lt;a href=&quot;x&quot;&gt;&lcub;b &amp; c&rcub;&lt;/a&gt;'");
    EXPECT_EQ(escapeHtmlDoubleQuoted("{\"a\\\n\"}"), "&lcub;&quot;a\\\\\\n&quot;&rcub;");
    const std::string nasty = "\\\b\f\n\r\t'\"\x01\x7f\xc3\xa4\0"s;
    EXPECT_EQ(escapeSingleQuoted(nasty), "\\\\\\b\\f\\n\\r\\t\\'\"\x01\x7f\xc3\xa4\0"s);
    EXPECT_EQ(escapeDoubleQuoted(nasty), "\\\\\\b\\f\\n\\r\\t'\\\"\x01\x7f\xc3\xa4\0"s);
}

TEST(Strings, literals) {
    const std::string nasty = "\\\b\f\n\r\t'\"`${}\x01\x7f\xe2\x80\xa8\0"s;
    EXPECT_EQ(toJsonLiteral(nasty), "\"\\\\\\b\\f\\n\\r\\t'\\\"`${}\\u0001\x7f\xe2\x80\xa8\\u0000\"");
    EXPECT_EQ(toJavaScriptLiteral(nasty), "'\\\\\\b\\f\\n\\r\\t\\'\"`${}\x01\x7f\xe2\x80\xa8\0'"s);
}

TEST(Strings, numbers) {
    EXPECT_EQ(toDouble(" -1.5e3"), -1500.0);
    EXPECT_EQ(toDouble("0x10"), 16.0);
    EXPECT_EQ(toInt64("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(toUInt64("18446744073709551615"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(toUInt64("-1"), std::numeric_limits<std::uint64_t>::max());

    for (const std::string& text : {""s, "x"s, " "s, "\0"s}) {
        EXPECT_EQ(failureOf<std::invalid_argument>([&] { return toDouble(text); }), "invalid stod argument");
        EXPECT_EQ(failureOf<std::invalid_argument>([&] { return toInt64(text); }), "invalid stoll argument");
        EXPECT_EQ(failureOf<std::invalid_argument>([&] { return toUInt64(text); }),
                  "invalid stoull argument");
    }
    for (const std::string& text : {"1x"s, "1 "s, "1\0"s}) {
        EXPECT_EQ(failureOf<std::invalid_argument>([&] { return toDouble(text); }),
                  "strtod: whole string is not converted");
        EXPECT_EQ(failureOf<std::invalid_argument>([&] { return toInt64(text); }),
                  "strtol: whole string is not converted");
        EXPECT_EQ(failureOf<std::invalid_argument>([&] { return toUInt64(text); }),
                  "strtoul: whole string is not converted");
    }
    EXPECT_EQ(failureOf<std::out_of_range>([] { return toDouble("1e999"); }), "stod argument out of range");
    EXPECT_EQ(failureOf<std::out_of_range>([] { return toInt64("9223372036854775808"); }),
              "stoll argument out of range");
    EXPECT_EQ(failureOf<std::out_of_range>([] { return toUInt64("18446744073709551616"); }),
              "stoull argument out of range");
}

TEST(Strings, utf8Length) {
    EXPECT_EQ(utf8Length(""), 0U);
    EXPECT_EQ(utf8Length("a\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80"), 4U);
    const auto fault = [](const char* text) {
        return failureOf<std::runtime_error>([text] { return utf8Length(text); });
    };
    EXPECT_EQ(fault("a\xff"), "Invalid UTF-8");
    EXPECT_EQ(fault("\xc3(a"), "Invalid UTF-8");
    EXPECT_EQ(fault("\xc0\xaf"), "Invalid UTF-8");         // overlong
    EXPECT_EQ(fault("\xed\xa0\x80"), "Invalid UTF-8");     // a surrogate
    EXPECT_EQ(fault("\xf4\x90\x80\x80"), "Invalid UTF-8"); // past U+10FFFF
    EXPECT_EQ(fault("a\xe2\x82"), "Not enough space");
}

TEST(Strings, toValidUtf8) {
    EXPECT_EQ(toValidUtf8("a\xc3\xa4\xf0\x9f\x98\x80"), "a\xc3\xa4\xf0\x9f\x98\x80");
    for (const char* text :
         {"\xff", "\x80", "\xc3", "\xe2\x82", "\xc0\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80"}) {
        EXPECT_NO_THROW((void)utf8Length(toValidUtf8(text)));
        EXPECT_EQ(toValidUtf8(text).substr(0, 3), "\xef\xbf\xbd");
        EXPECT_EQ(toValidUtf8(text + std::string("(")).back(), '(');
    }
}

} // namespace
} // namespace specloom
