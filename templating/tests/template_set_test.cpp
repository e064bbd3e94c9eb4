#include "jv/deser.h"
#include "templating/template_set.h"

#include <array>     // std::array
#include <memory>    // std::unique_ptr
#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>

namespace specloom::templating {
namespace {

std::unique_ptr<jv::JVDocument> dataOf(std::string_view json) {
    return jv::parseDocument(json, {.format = jv::DocumentFormat::Json, .refLoader = {}});
}

std::string render(const TemplateSet& set, std::string_view name, std::string_view json = "{}") {
    return set.render(name, *dataOf(json)->root());
}

/// Of one template without a name.
std::string render(std::string_view text, const jv::JV& data) {
    const std::array<EmbeddedFile, 1> table = {{{"", text}}};
    return TemplateSet({table}).render("", data);
}

std::string errorOf(const TemplateSet& set, std::string_view name, std::string_view json) {
    try {
        return "rendered: " + render(set, name, json);
    } catch (const TemplateError& error) {
        return error.what();
    }
}

TEST(TemplateSet, rendersWhatStandsThere) {
    struct Row {
        std::string text;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {"", ""},
        {"<{{ nasty }}>", "<{{ list }} {% endif %} {# \" & < \xff>"},
        {"a\r\n{% for x in list %}\r\n  - {{ x }}\r\n{% endfor %}\r\nb\r\n", "a\r\n  - 1\r\n  - 2\r\nb\r\n"},
        {"{% if 1 == 2 %}\n{% else %}\n  {# why #}\nyes\n{% endif %}", "yes\n"},
        {"{{ values }}", R"([-1,1.5,true,null,{"a":[[]]}])"},
        {"## heading\n{ {{ list }} }\n# {{ list.0 }}", "## heading\n{ [1,2] }\n# 1"},
    };
    const auto data = dataOf(R"({"list": [1, 2], "values": [-1, 1.5, true, null, {"a": [[]]}]})");
    data->root()->setString("nasty", "{{ list }} {% endif %} {# \" & < \xff");
    for (const Row& row : rows)
        EXPECT_EQ(render(row.text, *data->root()), row.expected) << row.text;
}

TEST(TemplateSet, offersFunctions) {
    const auto data = dataOf(R"({"text": "  pet_{\"'&", "name": "XMLParser/pet_store"})");
    const std::vector<std::array<std::string, 2>> rows = {
        {"{{ escapeHtml(text) }}", "  pet_&lcub;&quot;'&amp;"},
        {"{{ toJsonLiteral(text) }}", "\"  pet_{\\\"'&\""},
        {"{{ toJavaScriptLiteral(text) }}", "'  pet_{\"\\'&'"},
        {"{{ toJavaScriptLiteral(trimLines(text), 1) }}", "'pet_{\"\\'&'"},
        {"{{ name | toCamelCase }} {{ toPascalCase(name) }}", "xMLParserPetStore XMLParserPetStore"},
        {"{{ toSnakeCase(name) }} {{ toConstCase(name) }}", "x_m_l_parser_pet_store XMLPARSER_PET_STORE"},
        {"{% if isString(trim(\" a\\n\")) %}{{ trim(\" a\\n\") }}.{% endif %}", "a."},
    };
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(render(text, *data->root()), expected) << text;
}

/// Templates that use and fail one another.
const std::array<EmbeddedFile, 13> family = {{
    {"html_styles.jinja", "* { color: {{ title }}; }"},
    {"report", "{% extends \"html.jinja\" %}\r\n{% block content %}\r\n{% for x in list %}\r\n"
               "{% include \"parts/item\" %}\r\n{% endfor %}\r\n{{ last }}\r\n{% endblock %}\r\n"},
    {"parts/item", "- {{ x.name }}\r\n"},
    {"lost", "\n {% include \"nothing\" %}"},
    {"unknown", "{% if true %}\n{{ nobody(1) }}"},
    {"open", "a\n{% if true %}"},
    {"literal", "{{ 1.2.3 }}"},
    {"around", "{% include \"open\" %}"},
    {"circle", "{% include \"arc\" %}"},
    {"arc", "{% if false %}\n{% include \"circle\" %}{% endif %}"},
    {"typed", "{% for x in list %}\n  {% if true %}{{ trim(x.name) }}{% endif %}\n{% endfor %}"},
    {"own", "{{ greet(\"a\", \"b\") }}{% if isShort(\"c\") %}!{% endif %}"},
    {"failing", "{% include \"parts/item\" %}\n{{ greet(\"\", \"\") }}"},
}};

TEST(TemplateSet, includesAndExtendsByName) {
    const TemplateSet set({family});
    const char* data = R"({"title": "T", "list": [{"name": "a"}, {"name": "{{ title }}"}], "last": 1})";
    const std::string page = render(set, "report", data);
    EXPECT_NE(page.find("<title>T</title>\r\n    <style>\r\n* { color: T; }    </style>"), std::string::npos)
        << page;
    EXPECT_NE(page.find("<body>\r\n- a\r\n- {{ title }}\r\n1\r\n"), std::string::npos) << page;
    EXPECT_EQ(render(set, "report", data), page);
}

TEST(TemplateSet, saysWhichTemplateFailedAndWhere) {
    const TemplateSet set({family});
    const char* data = R"({"title": "T", "list": [{"name": "a"}, {"name": 1}]})";
    const std::vector<std::array<std::string, 2>> rows = {
        {"nothing", "Template not found: nothing"},
        {"lost", "Template lost, line 2, column 13: Template not found: nothing"},
        {"unknown", "Template unknown, line 2, column 12: unknown function nobody"},
        {"open", "Template open, line 2, column 14: unmatched if"},
        {"around", "Template open, line 2, column 14: unmatched if"},
        {"circle", "Template arc, line 2, column 12: Template includes itself: circle"},
        {"parts/item", "Template parts/item, line 1, column 6: variable 'x.name' not found"},
        {"typed", "Template typed, line 2, column 19: type must be string, but is number"},
        {"report", "Template report, line 6, column 4: variable 'last' not found"},
    };
    for (const auto& [name, text] : rows)
        for (const char* time : {"first", "second"})
            EXPECT_EQ(errorOf(set, name, data), text) << time;
    EXPECT_EQ(errorOf(set, "report", R"({"title": "T", "list": [{"nam": 1}]})"),
              "Template parts/item, line 1, column 6: variable 'x.name' not found");
    EXPECT_EQ(errorOf(set, "literal", data).find("Template literal: [json.exception.parse_error"), 0u);
}

TEST(TemplateSet, takesFunctionsOfItsModule) {
    const TemplateSet* itself = nullptr;
    const auto greet = [&](std::span<const std::string_view> names) {
        if (names[0].empty())
            return render(*itself, "parts/item", R"({"x": {"name": "y"}})") + render(*itself, "lost");
        return std::string(names[0]).append("+").append(names[1]);
    };
    const auto isShort = [](std::span<const std::string_view> texts) { return texts[0].size() < 3; };
    const TemplateSet set({family}, {{"greet", 2, greet}, {"isShort", 1, isShort}});
    itself = &set;
    EXPECT_EQ(render(set, "own"), "a+b!");
    EXPECT_EQ(errorOf(set, "failing", R"({"x": {"name": 1}})"),
              "Template lost, line 2, column 13: Template not found: nothing");
    EXPECT_EQ(errorOf(set, "failing", "{}"),
              "Template parts/item, line 1, column 6: variable 'x.name' not found");
}

TEST(TemplateSet, takesTheFirstOfTwoTemplatesWithOneName) {
    const std::array<EmbeddedFile, 1> first = {{{"html.jinja", "mine"}}};
    const std::array<EmbeddedFile, 1> second = {{{"html.jinja", "theirs"}}};
    EXPECT_EQ(render(TemplateSet({first, second}), "html.jinja"), "mine");
}

TEST(TemplateSet, hasConstantsInEveryRendering) {
    const std::array<EmbeddedFile, 3> table = {{{"around", "{{ c.x }} {{ within() }} {{ c.x }}"},
                                                {"within", "<{{ c.x }}>"},
                                                {"bad", "{{ c.none }}"}}};
    const auto data = dataOf(R"({"c": {"x": "hidden"}})");
    const TemplateSet* self = nullptr;
    TemplateSet set({table}, {{"within", 0, [&](std::span<const std::string_view>) {
                                   return self->render("within", *data->root());
                               }}});
    self = &set;
    set.setConstant("c", *dataOf(R"({"x": 1})")->root());
    set.setConstant("c", *dataOf(R"({"x": 2})")->root());
    EXPECT_EQ(set.render("around", *data->root()), "2 <2> 2");
    EXPECT_THROW(static_cast<void>(set.render("bad", *data->root())), TemplateError);
    EXPECT_EQ(set.render("within", *data->root()), "<2>");
    EXPECT_EQ(data->root()->get("c")->get("x")->text(), "hidden");
}

} // namespace
} // namespace specloom::templating
