#include "jv/jv_pointer.h"
#include "test_support/failure.h"

#include <string> // std::string
#include <vector> // std::vector

#include <gtest/gtest.h>

namespace specloom::jv {
namespace {

using test_support::failureOf;

TEST(Pointer, parsesAndWritesTokens) {
    struct Case {
        const char* text;
        std::vector<std::string> tokens;
    };
    const std::vector<Case> cases = {
        {"", {}},           {"/", {""}},
        {"/a/", {"a", ""}}, {"/a~1b/c~0d", {"a/b", "c~d"}},
        {"/~01", {"~1"}},   {"/paths/~1pets~1{id}", {"paths", "/pets/{id}"}},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(test.text);
        JVPointer pointer = {"old"};
        pointer.parse(test.text);
        EXPECT_EQ(static_cast<const std::vector<std::string>&>(pointer), test.tokens);
        EXPECT_EQ(pointer.toString(), test.text);
    }
}

TEST(Pointer, refusesWhatIsNone) {
    struct Case {
        const char* text;
        const char* message;
    };
    const std::vector<Case> cases = {
        {"a/b", "a/b does not represent a valid JSON pointer"},
        {"/a~", "Invalid JSON pointer"},
        {"/a~2", "Invalid JSON pointer"},
        {"/~/0", "Invalid JSON pointer"},
    };
    for (const Case& test : cases)
        EXPECT_EQ(failureOf<JVPointerError>([&] { JVPointer().parse(test.text); }), test.message)
            << test.text;
}

TEST(Pointer, parentAndChild) {
    EXPECT_EQ((JVPointer{"a", "b"}.parent()), JVPointer{"a"});
    EXPECT_EQ(JVPointer{"a"}.parent(), JVPointer{});
    EXPECT_THROW(static_cast<void>(JVPointer{}.parent()), JVPointerError);

    std::string out;
    childPointer(out, "/a", "b/c~d");
    EXPECT_EQ(out, "/a/b~1c~0d");
    childPointer(out, out, 12);
    EXPECT_EQ(out, "/a/b~1c~0d/12");
}

TEST(Pointer, splitGivesOnePieceMoreThanSeparators) {
    using Pieces = std::vector<std::string_view>;
    EXPECT_EQ(splitString("", '/'), Pieces{""});
    EXPECT_EQ(splitString("a", '/'), Pieces{"a"});
    EXPECT_EQ(splitString("/a//b/", '/'), (Pieces{"", "a", "", "b", ""}));
}

} // namespace
} // namespace specloom::jv
