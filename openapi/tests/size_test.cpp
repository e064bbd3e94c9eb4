// Documents of extreme depth and size end in a result or a clear text.

#include "openapi/node_visitor.h"
#include "openapi/writer.h"
#include "test_support/failure.h"
#include "test_support/read_text.h"
#include "test_support/texts.h"

#include <functional> // std::function
#include <string>     // std::string

#include <fmt/format.h> // fmt::format
#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

using test_support::readText;

constexpr int many = 50'000;

std::string document(const std::string& paths, const std::string& schemas) {
    return R"({"openapi":"3.1.0","info":{"title":"t","version":"1"},"paths":{)" + paths +
           R"(},"components":{"schemas":{)" + schemas + "}}}";
}

std::string repeated(int count, const std::function<std::string(int)>& part) {
    std::string text;
    for (int i = 0; i < count; ++i)
        text += (i == 0 ? "" : ",") + part(i);
    return text;
}

std::string nested(std::size_t levels, const std::string& open, const std::string& close) {
    return test_support::repeated(open, levels) + "{}" + test_support::repeated(close, levels);
}

std::size_t objectsIn(const ReadResult& result) {
    struct Counter final : NodeVisitHandler {
        using NodeVisitHandler::visit;
        void visit(const Node&) override { ++count; }
        std::size_t count = 0;
    } counter;
    NodeVisitor(counter).visit(result.root());
    return counter.count;
}

TEST(Size, nestingIsRefusedBeyondItsLimitAndServedUpToIt) {
    const auto refusal = [](const std::string& text) {
        return test_support::failureOf([&] { return readText(text); });
    };
    const std::string tooDeep = "Objects are nested more than 1000 levels deep at (1, ";
    EXPECT_TRUE(refusal(document("", R"("S":)" + nested(100'000, R"({"items":)", "}"))).starts_with(tooDeep));
    EXPECT_TRUE(refusal(document(R"("/a":)" + nested(many, R"({"get":{"callbacks":{"c":{"e":)", "}}}}"), ""))
                    .starts_with(tooDeep));
    EXPECT_TRUE(refusal(document(R"("/a":{"get":{"parameters":[{"in":"query","name":"n","content":{"a/b":)" +
                                     nested(many, R"({"encoding":{"p":{"headers":{"h":{"content":{"a/b":)",
                                            "}}}}}}") +
                                     "}}]}}",
                                 ""))
                    .starts_with(tooDeep));

    const auto deep = readText(document("", R"("S":)" + nested(990, R"({"items":)", "}")));
    EXPECT_EQ(objectsIn(*deep), 4 + 991u);
    EXPECT_TRUE(Writer(*deep).write(deep->root())->root()->equals(*deep->source().root()));
}

TEST(Size, breadthIsServed) {
    const std::string reference = R"({"$ref":"#/components/schemas/S"})";
    const auto paths = readText(
        document(repeated(2 * many, [](int i) { return fmt::format(R"("/{}":{{"get":{{}}}})", i); }), ""));
    EXPECT_EQ(paths->root().paths().size(), 2u * many);

    const auto references = readText(document("", R"("A":{"properties":{)" + repeated(many, [&](int i) {
                                                      return fmt::format(R"("p{}":{})", i, reference);
                                                  }) + R"(}},"S":{})"));
    EXPECT_EQ(objectsIn(*references), 6u);

    const auto operations = readText(document(
        repeated(
            10'000,
            [&](int i) {
                return fmt::format(
                    R"("/{}":{{"get":{{"responses":{{"200":{{"content":{{"a/b":{{"schema":{}}}}}}}}}}}}})", i,
                    reference);
            }),
        R"("S":{"items":)" + reference + "}"));
    EXPECT_EQ(objectsIn(*operations), 5 + 5 * 10'000u);

    // Each component is only a reference to the next, so that all wait for the last.
    const auto chain = readText(
        document("", repeated(many, [](int i) {
                         return fmt::format(R"("a{:06}":{{"$ref":"#/components/schemas/a{:06}"}})", i, i + 1);
                     }) + fmt::format(R"(,"a{:06}":{{}})", many)));
    EXPECT_EQ(chain->root().components().schema("a000000"),
              chain->root().components().schema(fmt::format("a{:06}", many)));
    // A walk through a chain of uses is as deep as the chain is long.
    const auto uses = readText(
        document("", repeated(many, [](int i) {
                     return fmt::format(R"("a{:06}":{{"items":{{"$ref":"#/components/schemas/a{:06}"}}}})", i,
                                        (i + 1) % many);
                 })));
    EXPECT_EQ(objectsIn(*uses), 4u + many);
}

} // namespace
} // namespace specloom::openapi
