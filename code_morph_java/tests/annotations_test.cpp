#include "code_morph_java/spring/annotations.h"
#include "code_morph_java/string_literal.h"

#include <limits>  // std::numeric_limits
#include <string>  // std::string
#include <utility> // std::pair

#include <gtest/gtest.h>

namespace specloom::code_morph::java {
namespace {

struct NamedRow {
    std::string name;
    bool required;
    std::string text;
    std::string identifier;
};

TEST(JavaAnnotations, ofParametersNameThemWhereTheyMust) {
    const NamedRow rows[] = {
        {"id", true, "@RequestParam", "id"},
        {"id", false, "@RequestParam(required=false)", "id"},
        {"x-id", true, "@RequestParam(\"x-id\")", "xId"},
        {"x-id", false, "@RequestParam(name=\"x-id\", required=false)", "xId"},
        {"a\"b", true, "@RequestParam(\"a\\\"b\")", "a_b"},
    };
    for (const NamedRow& row : rows) {
        const AnnotationRef annotation = parameterAnnotation(row.name, ParameterPlace::Query, row.required);
        EXPECT_EQ(annotation.text, row.text);
        EXPECT_EQ(annotation.name, row.identifier);
        EXPECT_EQ(annotation.import, "org.springframework.web.bind.annotation.RequestParam");
    }
    EXPECT_EQ(parameterAnnotation("a b", ParameterPlace::Body, true).text, "@RequestBody");
    EXPECT_EQ(parameterAnnotation("a b", ParameterPlace::Body, false).text, "@RequestBody(required=false)");
    EXPECT_EQ(parameterAnnotation("id", ParameterPlace::Path, true, "id2").text, "@PathVariable(\"id\")");
    EXPECT_EQ(parameterAnnotation("id", ParameterPlace::Header, true).text, "@RequestHeader");
    EXPECT_EQ(parameterAnnotation("id", ParameterPlace::Cookie, true).text, "@CookieValue");
}

TEST(JavaAnnotations, ofPropertiesNameThemWhereTheyMust) {
    const NamedRow rows[] = {
        {"id", false, "", "id"},
        {"id", true, "@JsonProperty(required=true)", "id"},
        {"pet-id", false, "@JsonProperty(value=\"pet-id\")", "petId"},
        {"class", true, "@JsonProperty(value=\"class\", required=true)", "class1"},
    };
    for (const NamedRow& row : rows) {
        const AnnotationRef annotation = propertyAnnotation(row.name, row.required);
        EXPECT_EQ(annotation.text, row.text);
        EXPECT_EQ(annotation.name, row.identifier);
        EXPECT_EQ(annotation.import.empty(), row.text.empty());
    }
}

TEST(JavaAnnotations, ofSizesHaveTheBoundsThatThereAre) {
    EXPECT_EQ(sizeAnnotation({}, {}), "");
    EXPECT_EQ(sizeAnnotation(3, {}), "@Size(min = 3)");
    EXPECT_EQ(sizeAnnotation({}, 7), "@Size(max = 7)");
    EXPECT_EQ(sizeAnnotation(3, 7), "@Size(min = 3, max = 7)");
    EXPECT_EQ(sizeAnnotation(0, 7), "@Size(max = 7)");
    EXPECT_EQ(sizeAnnotation(0, {}), "@Size()");
}

TEST(JavaAnnotations, ofMethods) {
    EXPECT_EQ(mappingAnnotation(RequestMethod::Get).text, "@GetMapping");
    EXPECT_EQ(mappingAnnotation(RequestMethod::Trace).import,
              "org.springframework.web.bind.annotation.TraceMapping");
}

TEST(JavaStringLiteral, standsForAnyText) {
    const std::pair<std::string, std::string> rows[] = {
        {"", R"("")"},
        {R"(a"b\c)", R"("a\"b\\c")"},
        {"\b\t\n\f\r", R"("\b\t\n\f\r")"},
        {std::string("\0\x1A\x7F", 3), R"("\u0000\u001a\u007f")"},
        {"é日😀", R"("é日😀")"},
        {"\u2028\u2029\u202E\u2066", R"("\u2028\u2029\u202e\u2066")"},
        {R"(\u000a)", R"("\\u000a")"},       // no escape: its backslash is not alone
        {"\\\xED\xA0\x80", R"("\\\ud800")"}, // an escape: two backslashes before it are one
        {"\xED\xBF\xBF\xED\x9F\xBF", "\"\\udfff\uD7FF\""},
        {"a\xFF"
         "b\xED",
         "\"a\uFFFD"
         "b\uFFFD\""},
    };
    for (const auto& [text, literal] : rows)
        EXPECT_EQ(toStringLiteral(text), literal);
}

TEST(JavaStringLiteral, fitsIntoAClassFile) {
    EXPECT_TRUE(fitsConstant(std::string(65535, 'a')));
    EXPECT_FALSE(fitsConstant(std::string(65536, 'a')));
    EXPECT_TRUE(fitsConstant(std::string(32767, '\0')));
    EXPECT_FALSE(fitsConstant(std::string(32768, '\0')));
    std::string faces;
    for (int i = 0; i < 10922; ++i)
        faces += "😀";
    EXPECT_TRUE(fitsConstant(faces)); // six bytes each
    EXPECT_FALSE(fitsConstant(faces + "aaaa"));
}

} // namespace
} // namespace specloom::code_morph::java
