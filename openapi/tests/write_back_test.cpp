// The judge of what is written back: it must see what is wrong, and name what is meant to be.

#include "jv/deser.h"
#include "test_support/write_back.h"

#include <sstream> // std::ostringstream
#include <vector>  // std::vector

#include <gtest/gtest.h>

namespace specloom::test_support {
namespace {

std::unique_ptr<jv::JVDocument> parse(const std::string& text) {
    return jv::parseDocument(text, {.format = jv::DocumentFormat::Json, .refLoader = {}});
}

struct Case {
    const char* source;
    const char* written;
    const char* differences;
};

void expectDifferences(const std::vector<Case>& cases, const std::string& head, const std::string& tail) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.source);
        std::ostringstream lines;
        const auto source = parse(head + c.source + tail);
        for (const WriteBackDifference& difference :
             compareWriteBack(*source, *parse(head + c.written + tail)))
            lines << difference << "\n";
        EXPECT_EQ(lines.str(), c.differences);
    }
}

TEST(WriteBack, tellsDefectsInDocuments) {
    expectDifferences(
        {
            {R"({})", R"({})", ""},
            {R"({"info":{"title":"a"}})", R"({"info":{"title":"b"}})",
             "/info/title: defect: \"a\" -> \"b\"\n"},
            {R"({"info":{"title":"a"}})", R"({"info":{}})", "/info/title: defect: \"a\" -> nothing\n"},
            {R"({"info":{}})", R"({"info":{"title":"b"}})", "/info/title: defect: nothing -> \"b\"\n"},
            {R"({"info":{"title":"a","version":"1"}})", R"({"info":{"version":"1","title":"a"}})",
             "/info: defect: keys title, version -> keys version, title\n"},
            {R"({"paths":{},"info":{}})", R"({"servers":[{}],"paths":{},"info":{}})",
             "/servers: defect: nothing -> [{}]\n: defect: keys paths, info -> keys servers, paths, info\n"},
            {R"({"x-a":{"b":[{"c":1,"d":2}]}})", R"({"x-a":{"b":[{"d":2,"c":1}]}})",
             "/x-a/b/0: defect: keys c, d -> keys d, c\n"},
            {R"({"x-a":1,"y":{"x-b":1}})", R"({})",
             "/x-a: defect: 1 -> nothing\n"
             "/y: unknown member: {\"x-b\":1} -> nothing\n"},
            {R"({"tags":[{"name":"a"},{"name":"b"}]})", R"({"tags":[{"name":"b"}]})",
             "/tags/0/name: defect: \"a\" -> \"b\"\n/tags/1: defect: {\"name\":\"b\"} -> nothing\n"},
            {R"({"tags":[],"paths":{}})", R"({})",
             "/paths: defect: {} -> nothing\n"
             "/tags: empty list or map left out: [] -> nothing\n"},
            {R"({"components":{"schemas":{"A":{}}}})", R"({"components":{}})",
             "/components/schemas/A: defect: {} -> nothing\n"},
            {R"({"paths":{"/a":{"get":{"tags":["t"],"security":[],"deprecated":false}}}})",
             R"({"paths":{"/a":{"get":{}}}})",
             "/paths/~1a/get/deprecated: false deprecated of an operation: false -> nothing\n"
             "/paths/~1a/get/tags/0: undeclared tag: \"t\" -> nothing\n"
             "/paths/~1a/get/security: defect: [] -> nothing\n"},
            {R"({"tags":[{"name":"t"}],"paths":{"/a":{"get":{"tags":["t","u"]}}}})",
             R"({"tags":[{"name":"t"}],"paths":{"/a":{"get":{}}}})",
             "/paths/~1a/get/tags/1: undeclared tag: \"u\" -> nothing\n"
             "/paths/~1a/get/tags: defect: [\"t\",\"u\"] -> nothing\n"},
            {R"({"components":{"parameters":{"p":{"in":"path","schema":{},"content":{"a":{}},"example":1,"examples":{}}}}})",
             R"({"components":{"parameters":{"p":{"in":"path","schema":{},"example":1,"required":true}}}})",
             "/components/parameters/p/content: content beside schema: {\"a\":{}} -> nothing\n"
             "/components/parameters/p/examples: examples beside example: {} -> nothing\n"
             "/components/parameters/p/required: mandatory member added: nothing -> true\n"},
            {R"({"components":{"links":{"l":{"operationRef":"a","operationId":"b","description":null}}}})",
             R"({"components":{"links":{"l":{"operationRef":"a"}}}})",
             "/components/links/l/description: null left out: null -> nothing\n"
             "/components/links/l/operationId: operationId beside operationRef: \"b\" -> nothing\n"},
            {R"({"components":{"examples":{"e":{"value":null,"summary":"s"},"f":{"$ref":"#/components/examples/e","x-a":1,"value":2}}}})",
             R"({"components":{"examples":{"e":{"summary":"s"},"f":{"$ref":"#/components/examples/g"}}}})",
             "/components/examples/e/value: defect: null -> nothing\n"
             "/components/examples/f/$ref: defect: \"#/components/examples/e\" -> "
             "\"#/components/examples/g\"\n"
             "/components/examples/f/value: sibling of a reference: 2 -> nothing\n"
             "/components/examples/f/x-a: defect: 1 -> nothing\n"},
        },
        "", "");
}

TEST(WriteBack, tellsWhatBecomesOfSchemas31) {
    expectDifferences(
        {
            {R"({"const":1})", R"({"enum":[2]})", "/components/schemas/S/const: defect: 1 -> [2]\n"},
            {R"({"items":false,"not":true})", R"({"items":{"not":{}},"not":{"not":{}}})",
             "/components/schemas/S/items: boolean schema as object: false -> {\"not\":{}}\n"
             "/components/schemas/S/not: defect: true -> {\"not\":{}}\n"},
            {R"({"type":["string","null"]})", R"({"type":"string"})",
             "/components/schemas/S/type: defect: [\"string\",\"null\"] -> \"string\"\n"},
            {R"({"type":"string","nullable":true})", R"({"type":"string"})",
             "/components/schemas/S/type: defect: \"string\" -> \"string\"\n"},
            {R"({"required":["b","a"]})", R"({"required":["a","b"]})",
             "/components/schemas/S/required: defect: [\"b\",\"a\"] -> [\"a\",\"b\"]\n"},
            {R"({"definitions":{"a":{"$ref":"r"}}})", R"({"$defs":{"a":{}}})",
             "/components/schemas/S/definitions: definitions renamed: {\"a\":{\"$ref\":\"r\"}} -> "
             "{\"a\":{}}\n/components/schemas/S/definitions/a/$ref: reference in definitions: \"r\" -> "
             "nothing\n"},
            {R"({"items":{"$ref":"*/components/schemas*S","title":"t"}})",
             R"({"items":{"$ref":"#/components/schemas/S"}})",
             "/components/schemas/S/items/$ref: canonical reference text: \"*/components/schemas*S\" -> "
             "\"#/components/schemas/S\"\n"
             "/components/schemas/S/items/title: sibling of a reference: \"t\" -> nothing\n"},
            {R"({"default":{"a":1},"example":1,"properties":{"example":{}}})", R"({"properties":{}})",
             "/components/schemas/S/default: defect: {\"a\":1} -> nothing\n"
             "/components/schemas/S/example: unknown member: 1 -> nothing\n"
             "/components/schemas/S/properties/example: defect: {} -> nothing\n"},
        },
        R"({"openapi":"3.1.0","components":{"schemas":{"S":)", "}}}");
}

TEST(WriteBack, tellsWhatBecomesOfSchemas30) {
    expectDifferences(
        {
            {R"({"default":1})", R"({"default":1})", "/components/schemas/S/default: defect: 1 -> 1\n"},
            {R"({"title":"t"})", R"({})", "/components/schemas/S/title: defect: \"t\" -> nothing\n"},
        },
        R"({"openapi":"3.0.3","components":{"schemas":{"S":)", "}}}");
}

} // namespace
} // namespace specloom::test_support
