#include "templating/templating.h"

#include <stdexcept> // std::runtime_error
#include <string>    // std::string
#include <vector>    // std::vector

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace specloom::templating {
namespace {

TEST(Templating, rendersWhatStandsThere) {
    struct Row {
        std::string text;
        std::string expected;
    };
    const std::vector<Row> rows = {
        {"", ""},
        {"<{{ nasty }}>", "<{{ list }} {% endif %} {# \" & < \xff>"},
        {"a\r\n{% for x in list %}\r\n  - {{ x }}\r\n{% endfor %}\r\nb\r\n", "a\r\n  - 1\r\n  - 2\r\nb\r\n"},
        {"{% if 1 == 2 %}\n{% else %}\n  {# why #}\nyes\n{% endif %}", "yes\n"},
        {"## heading\n{ {{ list }} }\n# {{ list.0 }}", "## heading\n{ [1,2] }\n# 1"},
    };
    const nlohmann::json data = {{"list", {1, 2}}, {"nasty", "{{ list }} {% endif %} {# \" & < \xff"}};
    for (const Row& row : rows)
        EXPECT_EQ(render(row.text, data), row.expected) << row.text;
}

TEST(Templating, refusesFaults) {
    for (const char* text : {"{{ missing }}", "{% for x in missing %}{% endfor %}", "{% if 1 %}", "{{",
                             "{% include \"/etc/hostname\" %}"})
        EXPECT_THROW((void)render(text, nlohmann::json::object()), std::runtime_error) << text;
}

TEST(Templating, takesTemplatesFromTheirSource) {
    const auto source = [](std::string_view name) -> std::string_view {
        if (name == "page")
            return "<{{ title }}>\r\n{% include \"style\" %}\r\n{% block body %}{% endblock %}\r\n.\r\n";
        if (name == "style")
            return "* {{ title }}";
        if (name == "report")
            return "{% extends \"page\" %}\r\n{% block body %}\r\n{% for x in list %}\r\n"
                   "{% include \"item\" %}\r\n{% endfor %}\r\n{% endblock %}\r\n";
        if (name == "item")
            return "- {{ x.name }}\r\n";
        if (name == "lost")
            return "{% include \"nothing\" %}";
        return {};
    };
    const nlohmann::json data = {{"title", "T"}, {"list", {{{"name", "a"}}, {{"name", "{{ title }}"}}}}};
    EXPECT_EQ(renderNamed("report", source, data), "<T>\r\n* T- a\r\n- {{ title }}\r\n.\r\n");
    EXPECT_THROW((void)renderNamed("nothing", source, data), std::runtime_error);
    EXPECT_THROW((void)renderNamed("lost", source, data), std::runtime_error);
}

} // namespace
} // namespace specloom::templating
