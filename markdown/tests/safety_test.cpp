#include "markdown/safety.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::markdown {

TEST(Safety, findsWhatAPageShouldNotRun) {
    struct Case {
        std::string text;
        bool html;
        std::string destination;
    };
    const std::vector<Case> cases = {
        {"", false, ""},
        {"Times of *high* and `<b>` water.\n\n    <b>", false, ""},
        {"a <b>c</b>", true, ""},
        {"<!-- a -->\n", true, ""},
        {"[a](b) ![c](//d/e) <https://f> <mailto:g@h> [i](tel:1) [j](#k:l)", false, ""},
        {"[a](javascript:b)", false, "javascript:b"},
        {"![a](https://b) ![c](data:d) ![e](file:f)", false, "data:d"},
        {"[a](JaVa&Tab;script&#58;b) <i>", true, "JaVa&Tab;script&#58;b"},
        {"[a][b]\n\n[b]: <\x01 javascript:c>", false, "\x01 javascript:c"},
        {"<ftp://a>", false, "ftp://a"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.text);
        const UnsafeContent content = unsafeContentOf(each.text);
        EXPECT_EQ(content.html, each.html);
        EXPECT_EQ(content.destination.value_or(""), each.destination);
    }
}

} // namespace specloom::markdown
