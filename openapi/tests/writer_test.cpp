#include "openapi/reader.h"
#include "openapi/reference.h"
#include "openapi/writer.h"
#include "test_support/corpora.h"
#include "test_support/golden.h"
#include "test_support/read_text.h"
#include "test_support/temporary_folder.h"
#include "test_support/write_back.h"

#include <filesystem> // std::filesystem::path
#include <functional> // std::function
#include <sstream>    // std::ostringstream
#include <string>     // std::string
#include <vector>     // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

using jv::DocumentFormat;
using test_support::expectGolden;
using test_support::readText;

const std::filesystem::path golden = std::filesystem::path(SPECLOOM_TEST_DIR) / "tests/golden";

std::string compact(const jv::JVDocument& document) {
    return jv::documentToText(document, {.format = DocumentFormat::Json, .indent = 0, .sorter = {}});
}

/// A document with one schema.
std::string documentWithSchema(std::string_view schema, std::string_view version = "3.1.0") {
    return R"({"openapi":")" + std::string(version) +
           R"(","info":{"title":"t","version":"1"},"components":{"schemas":{"S":)" + std::string(schema) +
           R"(}},"paths":{}})";
}

/// The schema of such a document, written back with `adjust`ed switches.
std::string schemaAgain(std::string_view schema, std::string_view version = "3.1.0",
                        const std::function<void(Writer&)>& adjust = {}) {
    const auto result = readText(documentWithSchema(schema, version));
    Writer writer(*result);
    if (adjust)
        adjust(writer);
    const std::string text = compact(*writer.write(result->root()));
    const std::size_t start = text.find(R"("S":)") + 4;
    return text.substr(start, text.find(R"(}},"paths")") - start);
}

// ---- whole documents

class WriterGolden : public testing::TestWithParam<const char*> {
  protected:
    const std::string name = GetParam();
    const std::unique_ptr<ReadResult> result =
        readFile((golden / (name + ".yaml")).string(), std::make_shared<const SchemaFormatRegistry>());
};

TEST_P(WriterGolden, bareWriterHasACanonicalOrder) {
    expectGolden(jv::documentToText(*Writer().write(result->root()), DocumentFormat::Yaml),
                 golden / (name + ".canonical.yaml"));
}

TEST_P(WriterGolden, boundWriterGivesBackTheSource) {
    std::ostringstream differences;
    for (const auto& difference :
         test_support::compareWriteBack(result->source(), *Writer(*result).write(result->root())))
        differences << difference << '\n';
    expectGolden(differences.str(), golden / (name + ".differences"));
}

INSTANTIATE_TEST_SUITE_P(Documents, WriterGolden, testing::Values("every-member-3.0", "every-member-3.1"));

// ---- schemas

TEST(Writer, schemasAreWrittenByVersionAndSwitches) {
    const auto constFromEnum = [](Writer& writer) { writer.setConstFromEnum(true); };
    const auto booleans = [](Writer& writer) { writer.setBooleanSchemas(true); };
    struct Case {
        const char* version;
        const char* schema;
        std::function<void(Writer&)> adjust;
        const char* written;
    };
    const std::vector<Case> cases{
        {"3.1.0", R"({"enum":[1]})", {}, R"({"enum":[1]})"},
        {"3.1.0", R"({"const":{"b":1,"a":2}})", {}, R"({"enum":[{"b":1,"a":2}]})"},
        {"3.1.0", R"({"enum":[1],"type":"integer"})", constFromEnum, R"({"type":"integer","const":1})"},
        {"3.1.0", R"({"enum":[1,2]})", constFromEnum, R"({"enum":[1,2]})"},
        {"3.0.3", R"({"enum":[1]})", constFromEnum, R"({"enum":[1]})"},
        {"3.1.0", R"({"items":true,"not":false})", {}, R"({"items":{},"not":{"not":{}}})"},
        {"3.1.0", R"({"items":true,"not":{"not":{}}})", booleans, R"({"items":true,"not":false})"},
        {"3.1.0", R"({"allOf":[{},true]})", booleans, "true"},
        {"3.0.3", R"({"items":{},"additionalProperties":false})", booleans,
         R"({"items":{},"additionalProperties":false})"},
        {"3.0.3", R"({"additionalProperties":{"$ref":"#/components/schemas/S"}})", booleans,
         R"({"additionalProperties":{"$ref":"#/components/schemas/S"}})"},
        {"3.1.0",
         R"({"definitions":{"b":{},"a":{}},"title":"t"})",
         {},
         R"({"title":"t","$defs":{"b":{},"a":{}}})"},
        {"3.2.0", R"({"$defs":{"b":{},"a":{}}})", {}, R"({"definitions":{"b":{},"a":{}}})"},
        {"3.1.0", R"({"type":["integer","null","integer"]})", {}, R"({"type":["null","integer"]})"},
        {"3.1.0", R"({"type":["integer"],"nullable":false})", {}, R"({"type":"integer"})"},
        {"3.0.3", R"({"nullable":true})", {}, R"({"type":"null"})"},
        {"3.1.0", R"({"required":["b","a","b"]})", {}, R"({"required":["b","a"]})"},
        {"3.1.0", R"({"x-a":{"z":[{"y":1,"x":2}],"b":1}})", {}, R"({"x-a":{"z":[{"y":1,"x":2}],"b":1}})"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.version) + " " + c.schema);
        EXPECT_EQ(schemaAgain(c.schema, c.version, c.adjust), c.written);
    }
}

TEST(Writer, takesSchemasAsDeepAsTheReader) {
    std::string schema = "{}";
    for (int depth = 0; depth < maxNodeDepth - 10; ++depth)
        schema = R"({"not":)" + schema + "}";
    const auto result = readText(documentWithSchema(schema));
    const auto written = Writer(*result).write(result->root());
    EXPECT_TRUE(written->root()->equals(*result->source().root()));
}

// ---- trees made in code

TEST(Writer, writesTreesMadeInCode) {
    struct Case {
        const char* what;
        std::function<void(OpenAPI&)> build;
        const char* members; ///< behind "info"
    };
    const std::vector<Case> cases{
        {"a new tree", [](OpenAPI&) {}, R"("paths":{})"},
        {"a component's name is not escaped",
         [](OpenAPI& root) {
             Schema* schema = root.components().createSchema("a/b~c");
             schema->setItemsReference(*schema);
         },
         R"("components":{"schemas":{"a/b~c":{"items":{"$ref":"#/components/schemas/a/b~c"}}}},"paths":{})"},
        {"a reference to what is no component has no text",
         [](OpenAPI& root) {
             Schema* schema = root.components().createSchema("S");
             Schema* inner = schema->createItems();
             schema->setNotReference(*inner);
             schema->addAllOfReference(*inner);
             schema->addOneOfReference(*inner);
             schema->addOneOf();
             schema->addPropertyReference("p", *inner);
         },
         R"("components":{"schemas":{"S":{"items":{},"oneOf":[{}]}}},"paths":{})"},
        {"nor has one whose target is gone",
         [](OpenAPI& root) {
             auto target = std::make_unique<PathItem>(&root);
             root.addWebhookReference("w", *target);
         },
         R"("paths":{})"},
        {"a server has all variables of its URL",
         [](OpenAPI& root) { root.createServer("{a}")->variable("a")->setDescription("d"); },
         R"("servers":[{"url":"{a}","variables":{"a":{"default":"","description":"d"}}}],"paths":{})"},
        {"members that OpenAPI demands",
         [](OpenAPI& root) {
             root.components().createRequestBody("B");
             root.components().createOAuth2SecurityScheme("O")->flows().createImplicit();
             Operation* operation = root.paths().createPathItem("/")->createOperation(OperationType::Put);
             operation->setInheritsSecurity(false);
             operation->createPathParameter("p");
         },
         R"("components":{"requestBodies":{"B":{"content":{}}},"securitySchemes":{"O":{"type":"oauth2",)"
         R"("flows":{"implicit":{"scopes":{}}}}}},"paths":{"/":{"put":{"parameters":[{"name":"p",)"
         R"("in":"path","required":true}],"security":[]}}})"},
        {"extensions keep components that are empty",
         [](OpenAPI& root) { root.components().setExtension("x-a", Value(jv::JV(true))); },
         R"("components":{"x-a":true},"paths":{})"},
        {"values in the byte-wise order of their keys",
         [](OpenAPI& root) {
             const auto value =
                 jv::parseDocument(R"({"b":1,"a":2})", {.format = DocumentFormat::Json, .refLoader = {}});
             root.setExtension("x-b", Value(*value->root()));
             root.setExtension("x-a", Value(jv::JV()));
         },
         R"("paths":{},"x-a":null,"x-b":{"a":2,"b":1})"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        OpenAPI root;
        c.build(root);
        EXPECT_EQ(compact(*Writer().write(root)),
                  R"({"openapi":"3.1.0","info":{"title":"New API","version":"0.1.0"},)" +
                      std::string(c.members) + "}");
    }
}

TEST(Writer, keepsWhatWasAddedBehindTheKeysOfTheSource) {
    const auto result = readText(
        R"({"paths":{"/b":{},"/c":{}},"info":{"version":"1","title":"t"},"openapi":"3.1.0","nonsense":1})");
    OpenAPI& root = result->root();
    root.info().setSummary("s");
    root.createTag("t");
    root.createServer("u");
    root.paths().createPathItem("/d");
    root.paths().createPathItem("/a");
    EXPECT_EQ(
        compact(*Writer(*result).write(root)),
        R"({"paths":{"/b":{},"/c":{},"/a":{},"/d":{}},"info":{"version":"1","title":"t","summary":"s"},)"
        R"("openapi":"3.1.0","servers":[{"url":"u"}],"tags":[{"name":"t"}]})");
}

TEST(Writer, takesAnyKeyOrders) {
    OpenAPI root;
    Schema* schema = root.components().createSchema("S");
    for (const char* name : {"a", "b", "c", "d"})
        schema->addProperty(name);
    Writer writer;
    writer.setKeyOrders(
        [](const Node& node) {
            return node.type() == NodeType::OpenAPI
                       ? std::vector<std::string_view>{"paths", "absent", "info", "paths"}
                       : std::vector<std::string_view>();
        },
        [](const Node&, std::string_view key) {
            return key == "properties" ? std::vector<std::string_view>{"d", "b"}
                                       : std::vector<std::string_view>();
        });
    EXPECT_EQ(compact(*writer.write(root)),
              R"({"paths":{},"info":{"title":"New API","version":"0.1.0"},"openapi":"3.1.0","components":)"
              R"({"schemas":{"S":{"properties":{"d":{},"b":{},"a":{},"c":{}}}}}})");
}

TEST(WriterDeathTest, refusesReferencesToSecuritySchemes) {
    OpenAPI root;
    Node* scheme = root.components().createMutualTLSSecurityScheme("tls");
    root.components().addReference(ComponentSection::SecuritySchemes, "alias", *scheme);
    EXPECT_DEATH(static_cast<void>(Writer().write(root)),
                 "Unreachable code: \\(Unsupported reference type\\)");
}

// ---- files

TEST(Writer, writesFiles) {
    const test_support::TemporaryFolder folder;
    // A null, and a date: for other readers something else than texts.
    const std::string source = "paths: {}\ninfo:\n  description: ~\n  version: 2001-12-14\n  title: t\n"
                               "openapi: 3.1.0\nx-a:\n  b: null\n";
    const auto result = readText(source, DocumentFormat::Yaml);
    const std::string yaml = folder.at("bound.yml");
    writeFile(*result, yaml);
    EXPECT_EQ(test_support::fileBytes(yaml), source);

    const std::string any = folder.at("canonical");
    writeTree(OpenAPI(), any, DocumentFormat::Yaml);
    EXPECT_EQ(test_support::fileBytes(any),
              "openapi: 3.1.0\ninfo:\n  title: New API\n  version: 0.1.0\npaths: {}\n");
    std::filesystem::remove_all(folder.path());
    EXPECT_THROW(writeFile(*result, yaml), std::runtime_error);
}

} // namespace
} // namespace specloom::openapi
