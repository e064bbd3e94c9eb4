#include "source_edit/line_script.h"
#include "source_edit/unified_diff.h"

#include <gtest/gtest.h>

namespace specloom::source_edit {
namespace {

/// With one change from `begin` on in both texts to so many bytes before their ends.
std::string diffOf(std::string_view before, std::string_view after, std::size_t begin = 0,
                   std::size_t behind = 0) {
    const Change change{{begin, before.size() - behind}, {begin, after.size() - behind}};
    return unifiedDiff("a.yaml", before, after, {&change, 1});
}

TEST(UnifiedDiff, isWhatPatchTakes) {
    const std::string head = "--- a.yaml\n+++ a.yaml\n";
    EXPECT_EQ(diffOf("a\nb\nc\n", "a\nb\nc\n"), "");
    EXPECT_EQ(diffOf("a\nb\nc\n", "a\nB\nc\n"), head + "@@ -1,3 +1,3 @@\n a\n-b\n+B\n c\n");
    EXPECT_EQ(diffOf("a\nbcd\ne\n", "a\nbXd\ne\n", 3, 4), head + "@@ -1,3 +1,3 @@\n a\n-bcd\n+bXd\n e\n");
    EXPECT_EQ(diffOf("a", "b"), head + "@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+b\n\\ No newline at "
                                       "end of file\n");
    EXPECT_EQ(diffOf("", "b\n"), head + "@@ -0,0 +1 @@\n+b\n");
    EXPECT_EQ(diffOf("1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\n6\n7\n8\n9\n"),
              head + "@@ -2,7 +2,6 @@\n 2\n 3\n 4\n-5\n 6\n 7\n 8\n");
    // Two hunks; between them more than twice three lines.
    EXPECT_EQ(diffOf("a\n1\n2\n3\n4\n5\n6\n7\nb\n", "A\n1\n2\n3\n4\n5\n6\n7\nB\n"),
              head + "@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n");
}

/// Applies a script to check that it leads from one list to the other.
TEST(LineScript, leadsFromOneListToTheOther) {
    std::uint32_t state = 1;
    const auto next = [&](std::uint32_t below) {
        state = state * 1664525U + 1013904223U;
        return (state >> 16U) % below;
    };
    constexpr std::string_view letters = "abcd";
    for (int round = 0; round < 2000; ++round) {
        std::vector<std::string_view> before;
        std::vector<std::string_view> after;
        for (auto* lines : {&before, &after})
            for (std::uint32_t count = next(12); count > 0; --count)
                lines->push_back(letters.substr(next(4), 1));
        std::vector<std::string_view> made;
        std::size_t at = 0;
        for (const LineChange& change : lineScript(before, after)) {
            ASSERT_GE(change.removed.begin, at);
            made.insert(made.end(), before.begin() + static_cast<std::ptrdiff_t>(at),
                        before.begin() + static_cast<std::ptrdiff_t>(change.removed.begin));
            ASSERT_EQ(made.size(), change.added.begin);
            made.insert(made.end(), after.begin() + static_cast<std::ptrdiff_t>(change.added.begin),
                        after.begin() + static_cast<std::ptrdiff_t>(change.added.end));
            at = change.removed.end;
        }
        made.insert(made.end(), before.begin() + static_cast<std::ptrdiff_t>(at), before.end());
        ASSERT_EQ(made, after);
    }
}

TEST(LineScript, givesUpOnTooManyDifferences) {
    std::vector<std::string_view> before(mostDifferingLines, "a");
    std::vector<std::string_view> after(mostDifferingLines, "b");
    before[mostDifferingLines / 2] = after[mostDifferingLines / 2] = "alike";
    const std::vector<LineChange> script = lineScript(before, after);
    ASSERT_EQ(script.size(), 1u);
    EXPECT_EQ(script.front().removed.end, before.size());
    EXPECT_EQ(script.front().added.end, after.size());
}

} // namespace
} // namespace specloom::source_edit
