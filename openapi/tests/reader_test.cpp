#include "jv/deser.h"
#include "openapi/node_visitor.h"
#include "openapi/reader.h"
#include "openapi/reference.h"
#include "openapi/writer.h"
#include "test_support/failure.h"
#include "test_support/golden.h"
#include "test_support/read_text.h"

#include <filesystem>  // std::filesystem::path
#include <memory>      // std::make_shared, std::weak_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::exchange
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi {
namespace {

using test_support::readText;

std::string refusalOf(std::string_view text, jv::DocumentFormat format = jv::DocumentFormat::Json) {
    return test_support::failureOf([&] { return readText(text, format); });
}

/// A document whose other members begin in column 56 of line 1.
std::string with(std::string_view members, std::string_view version = "3.1.0") {
    return R"({"openapi":")" + std::string(version) + R"(","info":{"title":"t","version":"1"},"paths":{},)" +
           std::string(members) + "}";
}

/// A document whose one schema begins in column 85.
std::string withSchema(std::string_view schema, std::string_view version = "3.1.0") {
    return with(R"("components":{"schemas":{"S":)" + std::string(schema) + "}}", version);
}

const Schema& schemaOf(const ReadResult& result) {
    return *result.root().components().schema("S");
}

TEST(Reader, reportsFaultsWithTheirPlaces) {
    struct Case {
        std::string document;
        const char* refusal;
    };
    const std::vector<Case> cases{
        {"[]", "OpenAPI object must be an object at (1, 1)\n"},
        {R"({"openapi":"3.1.0","info":5,"paths":{}})", "Info object must be an object at (1, 27)\n"},
        {with(R"("components":[])"), "Expected an object at (1, 79)\n"},
        {with(R"("servers":[1],"tags":[2])"), "Expected object at (1, 77)\nExpected object at (1, 88)\n"},
        {withSchema("5"), "Schema must be an object or boolean at (1, 95)\n"},
        {withSchema(R"({"type":[1,"string",{}]})"),
         "Expected string value for schema type at (1, 104)\nExpected string value for schema type at (1, "
         "115)\n"},
        {withSchema(R"({"type":{}})"), "Expected string or array value for schema type at (1, 103)\n"},
        {withSchema(R"({"const":1})", "3.0.3"),
         "const keyword is only supported in OpenAPI 3.1 at (1, 104)\n"},
        {withSchema(R"({"const":1,"enum":[2]})"),
         "const and enum keywords are mutually exclusive at (1, 113)\n"},
        {withSchema(R"({"exclusiveMaximum":true})"), "Expected numeric value at (1, 115)\n"},
        {withSchema(R"({"exclusiveMinimum":1})", "3.0.3"), "Expected boolean value at (1, 115)\n"},
        {withSchema(R"({"definitions":{},"$defs":{}})"),
         "definitions and $defs are mutually exclusive at (1, 110)\n"},
        {withSchema(R"({"definitions":{"D":{"$ref":"ignored"}}})"), ""},
        {withSchema(R"({"dependentRequired":{"a":1,"b":[2]}})"),
         "Expected array value at (1, 121)\nExpected string value at (1, 128)\n"},
        {withSchema(R"({"$schema":"urn:x"})"), "Unknown schema dialect: urn:x at (1, 106)\n"},
        {withSchema(R"({"minLength":-1})"), "Expected unsigned integer value at (1, 108)\n"},
        {R"({"openapi":"3.1.0","info":{"title":"t","version":"1","license":{"name":"n","identifier":"i","url":"u"}}})",
         "License object must have either identifier or url, not both at (1, 64)\n"},
        {with(
             R"("components":{"parameters":{"p":{"in":"path","name":"n","required":false,"style":"form"}}})"),
         "Path parameters must be required at (1, 133)\nInvalid parameter style: form at (1, 147)\n"},
    };
    for (const auto& [document, refusal] : cases)
        EXPECT_EQ(refusalOf(document), refusal) << document;
}

TEST(Reader, endsAtOnceWhereTheModelRefuses) {
    struct Case {
        std::string document;
        const char* refusal;
    };
    const std::vector<Case> cases{
        {"{}", "Required property 'openapi' is missing."},
        {R"({"openapi":"3.1.0"})", "Required property 'info' is missing."},
        {R"({"openapi":"3.1.0","info":{"title":null,"version":"1"}})",
         "A string value is expected for 'title'."},
        {with(R"("servers":{})"), "An array value is expected for 'servers'."},
        {with(R"("servers":[{"url":"a","variables":{"b":{}}}])"), "Invalid server variable: b"},
        {with(R"("servers":[{"url":"{a}{a}"}])"), "Duplicate server variable name: a"},
        {with(R"("components":{"parameters":{"p":{"in":"body","name":"n"}}})"),
         "Invalid parameter location: body"},
        {with(R"("components":{"parameters":{"p":{"in":"query"}}})"), "Required property 'name' is missing."},
        {with(R"("components":{"securitySchemes":{"s":{"type":"basic"}}})"),
         "Invalid security scheme type: basic"},
        {with(
             R"("webhooks":{"w":{"get":{"parameters":[{"in":"query","name":"a"},{"in":"query","name":"a"}]}}})"),
         "Parameter already exists"},
        {withSchema(R"({"type":"text"})"), "Invalid schema type: text"},
        {withSchema(R"({"maxLength":1.5})"), "An integer value is expected for 'maxLength'."},
    };
    for (const auto& [document, refusal] : cases)
        EXPECT_EQ(refusalOf(document), refusal) << document;
    EXPECT_THROW(
        (void)read(jv::parseDocument("{}", {.format = jv::DocumentFormat::Json, .refLoader = {}}), nullptr),
        std::invalid_argument);
}

TEST(Reader, warnsOnceOfCustomFormats) {
    const std::string refusal = refusalOf(withSchema(R"({"format":"a","items":{"format":"b"}})"));
    EXPECT_TRUE(refusal.starts_with(
        "Unknown format: a at (1, 105)\nUnknown format: b at (1, 127)\n\nWARNING: Looks like "
        "this schema uses custom schema formats. Define them in \nthe configuration file and "
        "pass the configuration file using the --config \noption. You can find more "
        "information about custom formats in the docs: \n"))
        << refusal;
    EXPECT_EQ(refusal.find("WARNING"), refusal.rfind("WARNING"));
}

TEST(Reader, keepsTheFormatsOfSchemasAlive) {
    auto formats = std::make_shared<SchemaFormatRegistry>();
    formats->add("sku", SchemaType::String);
    const auto result = read(jv::parseDocument(withSchema(R"({"format":"sku"})"),
                                               {.format = jv::DocumentFormat::Json, .refLoader = {}}),
                             formats);
    const std::weak_ptr<SchemaFormatRegistry> observed = std::exchange(formats, nullptr);
    EXPECT_FALSE(observed.expired());
    EXPECT_EQ(result->root().components().schema("S")->format()->name, "sku");
}

TEST(Reader, reportsEveryReferenceThatLeadsNowhere) {
    const std::filesystem::path document = SPECLOOM_TEST_DIR "/tests/golden/unresolved.yaml";
    test_support::expectGolden(refusalOf(test_support::fileBytes(document), jv::DocumentFormat::Yaml),
                               std::filesystem::path(document).replace_extension(".refusal"));
}

TEST(Reader, givesForwardReferencesAndChainsTheirSchemas) {
    const auto result = readText(with(R"("components":{
        "schemas":{"A":{"$ref":"#/components/schemas/B"},"B":{"$ref":"#/components/schemas/Z"},
                   "C":{"$ref":"#/components/schemas/Z"},
                   "U":{"properties":{"a":{"$ref":"#/components/schemas/A"},"s":{"$ref":"#/components/schemas/U"},
                        "odd":{"$ref":"#/definitions-elsewh/Z"}}},
                   "Z":{"type":"string"}},
        "parameters":{"P":{"in":"query","name":"p"},"Q":{"$ref":"#/components/parameters/P"}}})"));
    const Components& components = result->root().components();
    const Schema* end = components.schema("Z");
    for (const char* name : {"A", "B", "C"})
        EXPECT_EQ(components.schema(name), end) << name;
    const Schema* user = components.schema("U");
    EXPECT_EQ(resolveTo<Schema>(user->properties().find("a")), end);
    EXPECT_EQ(resolveTo<Schema>(user->properties().find("s")), user);
    EXPECT_EQ(resolveTo<Schema>(user->properties().find("odd")), end)
        << "the head of a reference is not compared";
    EXPECT_EQ(components.parameter("Q"), components.parameter("P"));
}

TEST(Reader, readsASchemaThatRefersToItselfThroughEveryKeyword) {
    const std::string self = R"({"$ref":"#/components/schemas/S"})";
    std::string schema;
    for (const char* keyword :
         {"contentSchema", "items", "additionalItems", "contains", "unevaluatedItems", "additionalProperties",
          "propertyNames", "unevaluatedProperties", "not", "if", "then", "else"})
        schema += (schema.empty() ? "{\"" : ",\"") + std::string(keyword) + "\":" + self;
    for (const char* keyword : {"prefixItems", "allOf", "oneOf", "anyOf"})
        schema += ",\"" + std::string(keyword) + "\":[" + self + "]";
    for (const char* keyword : {"properties", "patternProperties", "dependentSchemas"})
        schema += ",\"" + std::string(keyword) + "\":{\"a\":" + self + "}";
    const auto result = readText(withSchema(schema + "}"));

    int references = 0;
    for (const Reference* reference = schemaOf(*result).firstReference(); reference != nullptr;
         reference = reference->nextReference())
        ++references;
    EXPECT_EQ(references, 19);
    EXPECT_EQ(schemaOf(*result).elseSchema(), &schemaOf(*result));
    struct Counter final : NodeVisitHandler {
        using NodeVisitHandler::visit;
        void visit(const Schema&) override { ++count; }
        int count = 0;
    } counter;
    NodeVisitor(counter).visit(result->root());
    EXPECT_EQ(counter.count, 1);
    EXPECT_FALSE(schemaOf(*result).isAlwaysTrue());
    EXPECT_TRUE(Writer(*result).write(result->root())->root()->equals(*result->source().root()));
}

TEST(Reader, remembersWhereNodesCameFrom) {
    const auto result = readText(R"({"paths":{"/a~b":{"get":{"responses":{}}}},"openapi":"3.0.0",
 "info":{"version":"1","title":"t"}})");
    const OpenAPI& root = result->root();
    const Operation* get = root.paths().find("/a~b")->operation(OperationType::Get);
    EXPECT_EQ(result->pointerOf(*get), "/paths/~1a~0b/get");
    EXPECT_EQ(result->pointerOf(*get, "x/y"), "/paths/~1a~0b/get/x~1y");
    EXPECT_EQ(result->positionOf(root.info()), (jv::Pos{2, 9}));
    EXPECT_EQ(result->keyOrderOf(root), (std::vector<std::string_view>{"paths", "openapi", "info"}));
    EXPECT_EQ(result->keyOrderOf(root, "paths"), std::vector<std::string_view>{"/a~b"});
    EXPECT_EQ(result->keyOrderOf(root.info()), (std::vector<std::string_view>{"version", "title"}));
    EXPECT_EQ(result->nodeAtPointer("/paths/~1a~0b/get"), get);
    EXPECT_EQ(result->nodeAtPointer("/paths/~1a~0b/put"), nullptr);

    Schema made(&result->root());
    EXPECT_FALSE(result->positionOf(made).isKnown());
    EXPECT_TRUE(result->keyOrderOf(made).empty());
    EXPECT_TRUE(result->keyOrderOf(made, "paths").empty());
    EXPECT_EQ(result->pointerOf(made, "a"), std::nullopt);
    EXPECT_THROW((void)result->pointerOf(made), std::out_of_range);
}

} // namespace
} // namespace specloom::openapi
