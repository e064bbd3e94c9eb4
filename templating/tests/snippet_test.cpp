#include "templating/snippet.h"
#include "templating/template_set.h"

#include <string> // std::string

#include <gtest/gtest.h>

namespace specloom::templating {
namespace {

TEST(Snippet, hasValuesInItsPlaces) {
    const Snippet snippet("<{{b}}{ {{a}}{{a}} }>}} {{", {"a", "b"});
    std::string text = "before ";
    snippet.append({"{{b}}", ""}, text);
    EXPECT_EQ(text, "before <{ {{b}}{{b}} }>}} {{");
}

TEST(Snippet, knowsItsPlaces) {
    try {
        const Snippet snippet("{{a}}{{ b }}", {"a", "b"});
        FAIL();
    } catch (const TemplateError& error) {
        EXPECT_STREQ(error.what(), "Unknown place in a snippet:  b ");
    }
}

} // namespace
} // namespace specloom::templating
