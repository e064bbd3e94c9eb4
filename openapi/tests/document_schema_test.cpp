#include "jv/deser.h"
#include "jv/yaml_reader.h"
#include "openapi/document_schema.h"
#include "test_support/corpora.h"

#include <cstdio> // std::printf

#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

namespace fs = std::filesystem;
using jv::formatFromPath;
using jv::JV;
using jv::loadDocument;
using jv::parseYAML;
using jv::schema::ValidationError;

[[nodiscard]] std::vector<ValidationError> errorsOf(const JV& document) {
    const JV* version = document.isObject() ? document.get("openapi") : nullptr;
    const jv::schema::Schema& schema =
        documentSchema(version != nullptr && version->isString() ? version->text() : "");
    std::vector<ValidationError> errors = schema.validate(document);
    EXPECT_EQ(schema.isValid(document), errors.empty());
    return errors;
}

TEST(DocumentSchema, judgesItsOwnTestsAsTheirFoldersSay) {
    SPECLOOM_NEEDS_CORPORA();
    std::size_t count = 0;
    for (const char* folder : {"tests-v3.0", "tests-v3.1"}) {
        const fs::path root = test_support::corporaFolder() / "openapi-schemas" / folder;
        for (const fs::path& path : test_support::filesBelow(root, ".yaml")) {
            SCOPED_TRACE(path);
            const auto document = loadDocument(path.string()).document;
            const auto errors = errorsOf(*document->root());
            EXPECT_EQ(errors.empty(), path.parent_path().filename() == "pass")
                << (errors.empty() ? "" : errors.front().instancePointer + ": " + errors.front().message);
            ++count;
        }
    }
    EXPECT_GT(count, 40U);
}

TEST(DocumentSchema, looksIntoSchemasUnlessTheyAreOfAnotherDialect) {
    const std::string text = "openapi: 3.1.0\ninfo: {title: a, version: b}\n"
                             "components: {schemas: {A: {properties: {p: {type: strin}}}}}\n";
    const auto errors = errorsOf(*parseYAML(text)->root());
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].instancePointer, "/components/schemas/A/properties/p/type");
    EXPECT_EQ(errors[0].message,
              "expected one of 'array', 'boolean', 'integer', 'null', 'number', 'object', 'string', "
              "found 'strin'");
    const std::string ownDialect = text + "jsonSchemaDialect: https://example.com/dialect\n";
    EXPECT_EQ(errorsOf(*parseYAML(ownDialect)->root()).size(), 0U);
}

TEST(DocumentSchema, decidesEveryDocumentOfTheCorpora) {
    SPECLOOM_NEEDS_CORPORA();
    for (const fs::path& path : test_support::corpusDocuments()) {
        SCOPED_TRACE(path);
        const auto document = loadDocument(path.string()).document;
        const auto errors = errorsOf(*document->root());
        std::printf("%-40s %5zu errors\n", path.filename().c_str(), errors.size());
        for (const ValidationError& error : errors) {
            EXPECT_FALSE(error.message.empty() || error.schemaLocation.empty());
            EXPECT_NE(document->lookup(error.instancePointer), nullptr) << error.instancePointer;
        }
    }
}

} // namespace
} // namespace specloom::openapi
