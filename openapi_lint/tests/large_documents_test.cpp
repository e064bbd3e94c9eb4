// Documents of 100,000 findings or segments: whatever took their square would not come to its end.

#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_registry.h"
#include "test_support/read_text.h"

#include <cstddef> // std::size_t
#include <memory>  // std::unique_ptr
#include <string>  // std::string
#include <vector>  // std::vector

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace specloom::openapi_lint {
namespace {

constexpr std::size_t many = 100'000;

std::unique_ptr<openapi::ReadResult> readPaths(const std::string& members) {
    return test_support::readText(R"({"openapi":"3.1.0","info":{"title":"T","version":"1"},"paths":{)" +
                                  members + "}}");
}

std::size_t findingsOf(const std::string& id, openapi::ReadResult& document) {
    LintContext context;
    context.document = &document;
    findRule(id, Severity::Error)->check(context);
    return context.results.size();
}

TEST(LargeDocuments, ofManyFaultyPaths) {
    std::string members;
    for (std::size_t path = many; path-- > 0;)
        members += fmt::format(
            R"("/A/{{{0:06}}}/b/c":{{"parameters":[{{"name":"aB","in":"query"}},{{"name":"aB","in":"query"}}],)"
            R"("get":{{"operationId":"x","requestBody":{{"content":{{"a/b":{{}}}}}},)"
            R"("responses":{{"204":{{"content":{{"a/b":{{}}}}}},"2XX":{{}},"600":{{}}}}}}}}{1})",
            path, path == 0 ? "" : ",");
    const auto document = readPaths(members);
    const std::vector<std::pair<std::string, std::size_t>> rows = {
        {"no-content-response-defined", many},
        {"operation-description-defined", many},
        {"operation-document-not-primitive", 2 * many},
        {"operation-id-defined", 0},
        {"operation-id-unique", many - 1},
        {"operation-rate-limiting-defined", 2 * many},
        {"operation-security-defined", many},
        {"operation-success-response", 0},
        {"operation-tags-defined", many},
        {"parameter-description-defined", 2 * many},
        {"parameter-naming", 2 * many},
        {"parameters-unique", many},
        {"path-parameters-defined", many},
        {"path-parameters-on-items", many},
        {"paths-max-count", 1},
        {"paths-max-depth", many},
        {"paths-sorted", many - 1},
        {"paths-unique", many - 1},
        {"paths-well-formed", many},
        {"standard-response-codes", many},
        {"unambiguous-response-codes", many},
        {"unused-request-body", many},
    };
    for (const auto& [id, findings] : rows)
        EXPECT_EQ(findingsOf(id, *document), findings) << id;

    LintContext context;
    context.document = document.get();
    findRule("paths-well-formed", Severity::Error)->fix(context);
    EXPECT_EQ(findingsOf("paths-well-formed", *document), 0u);
    EXPECT_EQ(document->root().paths().size(), many);
    EXPECT_NE(document->root().paths().find("/a/{099999}/b/c"), nullptr);
}

TEST(LargeDocuments, ofOneLongPath) {
    std::string path;
    for (std::size_t segment = 0; segment < many; ++segment)
        path += fmt::format("/{{{}}}", segment);
    for (std::size_t segment = 0; segment < many; ++segment)
        path += "/{";
    const auto document = readPaths(fmt::format(R"("{}":{{"get":{{"responses":{{}}}}}})", path));
    for (const char* id : {"path-parameters-defined", "path-parameters-on-items", "paths-max-depth"})
        EXPECT_EQ(findingsOf(id, *document), 1u) << id;
    for (const char* id : {"paths-sorted", "paths-unique", "paths-well-formed"})
        EXPECT_EQ(findingsOf(id, *document), 0u) << id;
}

} // namespace
} // namespace specloom::openapi_lint
