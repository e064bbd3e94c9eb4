#include "templating/forms.h"

#include <array>  // std::array
#include <string> // std::string

#include <gtest/gtest.h>

namespace specloom::templating {
namespace {

const std::array<EmbeddedFile, 3> formTemplates = {{
    {"method", "{{ b }} {{ a }}({% include \"arguments\" %});{{ b }}\r\n"},
    {"arguments", "{% if a != \"\" %}{{ c }}{% else %}none{% endif %}"},
    {"fixed", "{# no text #}\r\n}\r\n"},
}};

TEST(Forms, givesWhatRenderingGives) {
    const TemplateSet set({formTemplates});
    Forms forms(set);
    const std::string mark("\x02"
                           "0\x03");
    for (int round = 0; round < 2; ++round) // the second one from what the first has prepared
        for (const char* a : {"", "x", "{{ b }}"})
            for (const char* b : {"", "yy"})
                for (const std::string& c : {std::string(), mark, std::string("a\0\xff", 3)}) {
                    const auto data = jv::JV::newObject();
                    data->setString("a", a);
                    data->setString("b", b);
                    data->setString("c", c);
                    EXPECT_EQ(forms.fill("method", {{"a", a}, {"b", b}, {"c", c}}),
                              set.render("method", *data));
                }
    EXPECT_EQ(forms.fill("fixed", {}), "}\r\n");
}

TEST(Forms, saysWhatRenderingSays) {
    const TemplateSet set({formTemplates});
    EXPECT_THROW(static_cast<void>(Forms(set).fill("method", {{"a", "x"}})), TemplateError);
    EXPECT_THROW(static_cast<void>(Forms(set).fill("nothing", {})), TemplateError);
}

} // namespace
} // namespace specloom::templating
