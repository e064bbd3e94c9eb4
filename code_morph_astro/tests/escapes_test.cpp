#include "code_morph_astro/attributes.h"
#include "code_morph_astro/escapes.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <tuple>       // std::tuple

#include <gtest/gtest.h>

namespace specloom::code_morph::astro {
namespace {

using namespace std::string_view_literals;

TEST(AstroEscapes, leaveNothingThatActs) {
    const std::tuple<std::string_view, std::string_view, std::string_view> cases[] = {
        {"", "", R"("")"},
        {"a < b", "a &lt; b", R"("a < b")"},
        {"  a\n    b\n  c  \n", "a\n    b\n  c  ", R"("  a\n    b\n  c  \n")"},
        {"{6*7} `${x}`", "&lcub;6*7&rcub; `$&lcub;x&rcub;`", R"("{6*7} `${x}`")"},
        {"</script>\"'\\&", "&lt;/script&gt;&quot;'\\&amp;", R"("\u003c/script>\"'\\&")"},
        {"<SCRIPT><!--<s", "&lt;SCRIPT&gt;&lt;!--&lt;s", R"("\u003cSCRIPT>\u003c!--<s")"},
        {"a\r\nb\t\x01\x7F\0."sv, "a\r\nb\t\uFFFD\uFFFD\uFFFD.", R"("a\r\nb\t\u0001\u007f\u0000.")"},
        {"\u2028\u2029 \u2030 \u00e9", "\u2028\u2029 \u2030 \u00e9", "\"\\u2028\\u2029 \u2030 \u00e9\""},
        {"a\xED\xA0\x80\xFF", "a\uFFFD\uFFFD", "\"a\uFFFD\uFFFD\""},
        {"a\xE2", "a\uFFFD", "\"a\uFFFD\""},
    };
    for (const auto& [text, asText, literal] : cases) {
        EXPECT_EQ(toAstroText(text), asText);
        EXPECT_EQ(toAstroLiteral(text), literal);
        EXPECT_EQ(toAstroAttribute(text), "{" + std::string(literal) + "}");
    }
}

TEST(AstroAttributes, areExpressions) {
    const std::string scopes = ObjectLiteral().text("a", "{").take();
    EXPECT_EQ(Attributes()
                  .text("name", "a\"")
                  .textIf("none", std::optional<std::string_view>())
                  .flag("required", true)
                  .flag("deprecated", false)
                  .literal("minimum", "-1")
                  .literal("enum", toArrayLiteral(std::vector<std::string>{"a", "}"}))
                  .literal("list", joinLiterals(std::vector<std::string>{scopes, "1"}))
                  .literal("none", ObjectLiteral().take())
                  .take(),
              R"( name={"a\""} required minimum={-1} enum={["a", "}"]} list={[{"a": "{"}, 1]} none={{}})");
}

} // namespace
} // namespace specloom::code_morph::astro
