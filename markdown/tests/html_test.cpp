#include "markdown/html.h"
#include "test_support/parsers.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::markdown {
namespace {

using namespace std::string_literals;
using test_support::markupFault;

struct Case {
    std::string text;
    std::string html;
};

std::string repeated(std::string_view unit, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += unit;
    return text;
}

TEST(Html, writesWhatCommonMarkMeans) {
    const std::vector<Case> cases = {
        {"", ""},
        {"a\nb  \nc\\\nd", "<p>a\nb<br />\nc<br />\nd</p>\n"},
        {"# A *b*\n\nc\n===\n####### d", "<h1>A <em>b</em></h1>\n<h1>c</h1>\n<p>####### d</p>\n"},
        {"**a *b*** `c <d> {e}` &copy;&#228;&ngE; &no;",
         "<p><strong>a <em>b</em></strong> <code>c &lt;d&gt; &lcub;e&rcub;</code> "
         "\u00A9\u00E4\u2267\u0338 &amp;no;</p>\n"},
        {"- a\n- b\n  - c\n", "<ul>\n<li>a</li>\n<li>b\n<ul>\n<li>c</li>\n</ul>\n</li>\n</ul>\n"},
        {"3. a\n\n   b\n4. c",
         "<ol start=\"3\">\n<li>\n<p>a</p>\n<p>b</p>\n</li>\n<li>\n<p>c</p>\n</li>\n</ol>\n"},
        {"> a\n>\n> ---\n", "<blockquote>\n<p>a</p>\n<hr />\n</blockquote>\n"},
        {"``` x\"y z\n<a>\n```\n\n    b\n",
         "<pre><code class=\"language-x&quot;y\">&lt;a&gt;\n</code></pre>\n"
         "<pre><code>b\n</code></pre>\n"},
        {"[a](</b\u00E4&ouml; ?c=1&d=\"{}> 'e \"f&quot;')",
         "<p><a href=\"/b%C3%A4%C3%B6%20?c=1&amp;d=%22%7B%7D\" title=\"e &quot;f&quot;\">a</a></p>\n"},
        {"<http://a?b&c> <d@e.f> [g]\n\n[g]: #h",
         "<p><a href=\"http://a?b&amp;c\">http://a?b&amp;c</a> "
         "<a href=\"mailto:d@e.f\">d@e.f</a> <a href=\"#h\">g</a></p>\n"},
        {"![a *b*\n`c` ![d](e) <i>](f.png \"g\")",
         "<p><img src=\"f.png\" alt=\"a b c d \" title=\"g\" /></p>\n"},
        {"a\0b\n\n<p>\0</p>\n\n    \0d"s,
         "<p>a\uFFFDb</p>\n<p>\uFFFD</p>\n<pre><code>\uFFFDd\n</code></pre>\n"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(toHtml(each.text), each.html) << each.text;
}

TEST(Html, writesTablesWhereTheyAreAskedFor) {
    const std::vector<Case> cases = {
        {"| a *b* | c |\n|:-:|---|\n| `d\\|e` | <b>f | g |\n| <td> h\n\ni",
         "<table>\n<thead>\n<tr>\n<th align=\"center\">a <em>b</em></th>\n<th>c</th>\n</tr>\n</thead>\n"
         "<tbody>\n<tr>\n<td align=\"center\"><code>d|e</code></td>\n<td><b>f</b></td>\n</tr>\n"
         "<tr>\n<td align=\"center\"><td> h</td></td>\n<td></td>\n</tr>\n</tbody>\n</table>\n<p>i</p>\n"},
        {"a | b", "<p>a | b</p>\n"},
        {"a\n---", "<h2>a</h2>\n"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(toHtml(each.text, {.headingShift = 0, .headingIdPrefix = {}, .tables = true}), each.html)
            << each.text;
    EXPECT_EQ(toHtml("|a|\n|---|\n|b|"), "<p>|a|\n|---|\n|b|</p>\n");
}

TEST(Html, takesATableForTextThatWouldGrowBeyondBounds) {
    const HtmlOptions options = {.headingShift = 0, .headingIdPrefix = {}, .tables = true};
    const std::string wide = repeated("|a", 1000) + "\n" + repeated("|---", 1000) + "\n";
    EXPECT_TRUE(toHtml(wide + repeated("b\n", 10), options).starts_with("<table>"));
    EXPECT_TRUE(toHtml(wide + repeated("b\n", 5000), options).starts_with("<p>|a"));
}

TEST(Html, runsNothing) {
    const std::vector<Case> cases = {
        {"a <script>b</script> <svg onload=c>",
         "<p>a &lt;script&gt;b&lt;/script&gt; &lt;svg onload=c&gt;</p>\n"},
        {"<script>\nalert('{a}')\n</script>\n", "&lt;script&gt;\nalert('&lcub;a&rcub;')\n&lt;/script&gt;\n"},
        {"<STYLE>*{}</STYLE>", "&lt;STYLE&gt;*&lcub;&rcub;&lt;/STYLE&gt;\n"},
        {"a <B ONCLICK='x'>b</b> <br/> <!-- c --> <?d?> <!E f> <![CDATA[<i>]]> g",
         "<p>a <b>b</b> <br />     g</p>\n"},
        {"<a href=\"&#106avascript:a\" title='b\"'>c</a> <a HREF=&#x6A;avascript&colon;a href=b>d</a>",
         "<p><a href=\"&amp;#106avascript:a\" title=\"b&quot;\">c</a> <a>d</a></p>\n"},
        {"<a href='https://a/?b&c=d'><img src=e.png alt=f onerror=g>",
         "<p><a href=\"https://a/?b&amp;c=d\"><img src=\"e.png\" alt=\"f\" /></a></p>\n"},
        {"<table><td colspan=2 rowspan=\"x\" style='a'>", "<table><td colspan=\"2\">\n</td></table>\n"},
        {"<div\nid=a>\n\n*b*\n\n</div>\n</div>", "<div>\n<p><em>b</em></p>\n</div>\n\n"},
        {"> <b>a\n\nb</b></blockquote>", "<blockquote>\n<p><b>a</b></p>\n</blockquote>\n<p>b</p>\n"},
        {"*<i>a* </i> <u>b <s>c</u> d</s>", "<p><em><i>a</i></em>  <u>b <s>c</s></u> d</p>\n"},
        {"<p title=\"a <b>c</b>", "&lt;p title=&quot;a &lt;b&gt;c&lt;/b&gt;\n"},
        {"<div><a b='c'd>e</a>", "<div>&lt;a b='c'd&gt;e\n</div>\n"},
        {"<p><!-- a\n<b>", "<p>&lt;!-- a\n<b>\n</b></p>\n"},
        {"[a *b*](javascript:c) ![d](data:e) ![f [g](h)](vbscript:i)",
         "<p>a <em>b</em> d f <a href=\"h\">g</a></p>\n"},
        {"[a](JaVa&Tab;script&#58;b) [c](<\x01 javascript:d>) [e](&NewLine;//f)",
         "<p>a c <a href=\"%0A//f\">e</a></p>\n"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(toHtml(each.text), each.html) << each.text;
}

TEST(Html, shiftsAndNamesHeadings) {
    const std::string text = "# A {b} &amp; C\n## a\n##### a\n# a-1\n# *a*\n# ?\n";
    EXPECT_EQ(
        toHtml(text, {.headingShift = 1, .headingIdPrefix = "p-"}),
        "<h2 id=\"p-a-b--c\">A &lcub;b&rcub; &amp; C</h2>\n<h3 id=\"p-a\">a</h3>\n<h6 id=\"p-a-1\">a</h6>\n"
        "<h2 id=\"p-a-1-1\">a-1</h2>\n<h2 id=\"p-a-2\"><em>a</em></h2>\n<h2>?</h2>\n");
    EXPECT_EQ(toHtml("###### a", {.headingShift = 4'000'000'000, .headingIdPrefix = {}}), "<h6>a</h6>\n");
}

/// Texts that make parsers slow or their output large. The time limit of the tests would catch a square.
TEST(Html, takesCostlyTexts) {
    constexpr std::size_t many = 30'000;
    const std::vector<std::string> texts = {
        repeated(">", many),
        repeated("- ", many) + "a" + repeated("\n", many) + "b",
        repeated("1) ", many) + "a" + repeated("\n", many) + "b",
        repeated("[", many) + repeated("](a)", many),
        repeated("![a](", many),
        repeated("*a **b _", many),
        repeated("a <b>", many) + repeated("</u>", many),
        "<div>" + repeated("<!--", many) + repeated("<?", many) + repeated("<a b='\"' c=\"", many),
        repeated("<http:", many),
        repeated("`", many) + "a" + repeated("` ``", many),
        repeated("# a\n", many),
        "[a]: <" + repeated("b", many) + ">\n\n" + repeated("[a] ", many),
        "[a]: b '" + repeated("c", many) + "'\n\n" + repeated("![a] ", many),
    };
    for (const std::string& text : texts) {
        const std::string html = toHtml(text, {.headingShift = 0, .headingIdPrefix = ""});
        EXPECT_LT(html.size(), 20 * text.size()) << text.substr(0, 20);
        EXPECT_EQ(markupFault("<p>" + html + "</p>"), "") << text.substr(0, 20);
    }
}

TEST(Html, leavesDeepMarksAsText) {
    const std::string quotes = repeated(">", 203);
    EXPECT_TRUE(
        toHtml(quotes + " a").ends_with("<p>&gt;&gt;&gt; a</p>\n" + repeated("</blockquote>\n", 200)));
    const std::string lists = repeated("+ ", 100);
    EXPECT_NE(toHtml(lists + "12) a").find("<li>12) a</li>"), std::string::npos);
    EXPECT_EQ(toHtml(repeated("- ", 300)), "<hr />\n");
    EXPECT_EQ(toHtml("a\r" + repeated(" ", 300) + "- b"), "<p>a\n- b</p>\n");
}

} // namespace
} // namespace specloom::markdown
