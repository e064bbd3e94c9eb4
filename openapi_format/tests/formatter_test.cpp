#include "openapi_format/formatter.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_format {
namespace {

std::unique_ptr<jv::JVDocument> json(std::string_view text) {
    return jv::parseDocument(text, {.format = jv::DocumentFormat::Json, .refLoader = {}});
}

/// A formatter with the "openapi" part of a section, in JSON.
Formatter formatterWith(std::string_view openapi, const std::string& base = "original") {
    const auto section = json(R"({"extends": ")" + base + R"(", "openapi": )" + std::string(openapi) + "}");
    return Formatter(Configuration::load(section->root()));
}

std::string compact(const jv::JVDocument& document) {
    return jv::documentToText(document, {.format = jv::DocumentFormat::Json, .indent = 0, .sorter = {}});
}

std::string formatted(const Formatter& formatter, std::string_view text) {
    const auto document = json(text);
    EXPECT_EQ(formatter.run(*document), document->root());
    std::string once = compact(*document);
    formatter.run(*document);
    EXPECT_EQ(compact(*document), once) << "a second run changes the order";
    return once;
}

TEST(Formatter, orders) {
    struct Case {
        const char* what;
        const char* openapi;
        const char* source;
        const char* expected;
    };
    const std::vector<Case> cases = {
        {"nothing is named", "{}", R"({"tags":[{"name":"b","description":"a"}],"openapi":"3.1.0"})",
         R"({"tags":[{"name":"b","description":"a"}],"openapi":"3.1.0"})"},
        {"named keys first, the others as they stood",
         R"({"property_order": {"info": ["title", "version"]}})",
         R"({"info":{"x-b":1,"version":2,"contact":3,"title":4,"a":5}})",
         R"({"info":{"title":4,"version":2,"x-b":1,"contact":3,"a":5}})"},
        {"a key named twice counts at its first place", R"({"property_order": {"info": ["b", "a", "b"]}})",
         R"({"info":{"a":1,"b":2}})", R"({"info":{"b":2,"a":1}})"},
        {"sorting is byte-wise", R"({"property_order": {"paths": "sorted"}})",
         R"({"paths":{"/a/b":{},"/a-b":{},"/ä":{},"/a":{},"/Z":{},"/a{b}":{},"/aa":{}}})",
         R"({"paths":{"/Z":{},"/a":{},"/a-b":{},"/a/b":{},"/aa":{},"/a{b}":{},"/ä":{}}})"},
        {"sorting a kind leaves what is below it", R"({"property_order": {"responses": "sorted"}})",
         R"({"paths":{"/":{"get":{"responses":{"404":{"z":1,"a":2},"200":{"z":1,"a":2}}}}}})",
         R"({"paths":{"/":{"get":{"responses":{"200":{"z":1,"a":2},"404":{"z":1,"a":2}}}}}})"},
        {"webhooks when they are named", R"({"property_order": {"webhooks": "sorted"}})",
         R"({"webhooks":{"b":{},"a":{}},"paths":{"/b":{},"/a":{}}})",
         R"({"webhooks":{"a":{},"b":{}},"paths":{"/b":{},"/a":{}}})"},
        {"the default reaches kinds without an order and maps, but no payload",
         R"({"property_order": {"default": "sorted", "tag": [], "contact": "original", "schema": ["type"]}})",
         R"({"tags":[{"y":1,"x":2}],"info":{"contact":{"y":1,"x":2},"b":{"y":1,"x":2}},"x-b":{"y":1,"x":2},)"
         R"("components":{"schemas":{"B":{"b":1,"a":2,"type":3,"default":{"y":1,"x":2},"properties":{"y":{},"x":{}}},)"
         R"("A":{}}}})",
         R"({"components":{"schemas":{"A":{},)"
         R"("B":{"type":3,"b":1,"a":2,"default":{"y":1,"x":2},"properties":{"x":{},"y":{}}}}},)"
         R"("info":{"b":{"y":1,"x":2},"contact":{"y":1,"x":2}},"tags":[{"y":1,"x":2}],"x-b":{"y":1,"x":2}})"},
        {"of a key that stands twice the last value, at the first place",
         R"({"property_order": {"info": ["title", "version"]}})",
         R"({"info":{"a":1,"version":2,"title":3,"version":4,"b":5,"a":6}})",
         R"({"info":{"title":3,"version":4,"a":6,"b":5}})"},
        {"keys that stand twice in an order that fits already", R"({"property_order": {"info": ["title"]}})",
         R"({"info":{"title":1,"b":2,"a":3,"b":4}})", R"({"info":{"title":1,"b":4,"a":3}})"},
    };
    for (const Case& example : cases) {
        SCOPED_TRACE(example.what);
        EXPECT_EQ(formatted(formatterWith(example.openapi), example.source), example.expected);
    }
}

TEST(Formatter, references) {
    // A schema, and after it what the recommended configuration makes of it.
    const std::vector<std::pair<const char*, const char*>> schemas = {
        {R"({"description":"b","$ref":"a"})", R"({"$ref":"a","description":"b"})"},
        {R"({"x-b":1,"description":"b","summary":"c","$ref":"a"})",
         R"({"$ref":"a","summary":"c","description":"b","x-b":1})"},
        {R"({"type":"object","$ref":"a","title":"b"})", R"({"title":"b","type":"object","$ref":"a"})"},
        {R"({"properties":{"b":{"type":1,"title":2}},"$ref":"a"})",
         R"({"properties":{"b":{"title":2,"type":1}},"$ref":"a"})"},
        {R"({"description":"b","$ref":{"type":1,"title":2}})",
         R"({"description":"b","$ref":{"type":1,"title":2}})"},
    };
    const Formatter formatter;
    for (const auto& [source, expected] : schemas) {
        SCOPED_TRACE(source);
        const auto inDocument = [](const std::string& schema) {
            return R"({"components":{"schemas":{"A":)" + schema + "}}}";
        };
        EXPECT_EQ(formatted(formatter, inDocument(source)), inDocument(expected));
    }
    // Everything else is a reference whatever stands beside the "$ref", but for a path item, which is none.
    EXPECT_EQ(
        formatted(formatter, R"({"paths":{"/":{"$ref":"a","get":{"parameters":[{"in":"b","$ref":"c"}]}}}})"),
        R"({"paths":{"/":{"get":{"parameters":[{"$ref":"c","in":"b"}]},"$ref":"a"}}})");
}

TEST(Formatter, whatIsNotInShapeStaysAsItIs) {
    const Formatter formatter = formatterWith(R"({"property_order": {"default": "sorted"}})", "recommended");
    for (
        const char* source : {
            "[{\"b\":1,\"a\":2}]",
            "{}",
            R"({"info":[{"title":1,"a":2}],"paths":"none","components":{"schemas":[{"type":1,"title":2}]}})",
            R"({"servers":{"url":{"url":1,"a":2}},"tags":[[{"description":1,"name":2}],null,"pears"]})",
            R"({"components":{"schemas":{"A":{"allOf":{"type":{"type":1,"title":2}},"not":[{"type":1,"title":2}]}}}})",
        }) {
        EXPECT_EQ(formatted(formatter, source), source);
    }
    jv::JVDocument empty;
    EXPECT_EQ(formatter.run(empty), nullptr);
}

TEST(Formatter, documentsBuiltInCode) {
    jv::JVDocument document;
    jv::JV* root = document.makeRoot(jv::Kind::Object);
    jv::JV* info = root->setObject("info");
    info->setString("version", "1");
    info->setString("title", "Made");
    info->setString("license", "None");
    info->remove("license");
    root->setString("openapi", "3.1.0");
    Formatter().run(document);
    EXPECT_EQ(compact(document), R"({"openapi":"3.1.0","info":{"title":"Made","version":"1"}})");
}

TEST(Formatter, valuesKeepTheirPointers) {
    const auto document = json(R"({"info":{"version":"1","title":"A"},"openapi":"3.1.0"})");
    const jv::JV* title = document->lookup("/info/title");
    Formatter().run(*document);
    ASSERT_EQ(document->lookup("/info/title"), title);
    EXPECT_EQ(title->pointer(), "/info/title");
    EXPECT_EQ(title->text(), "A");
}

TEST(Formatter, depthIsNoLimit) {
    constexpr int levels = 100000;
    std::string arrays, schemas, ends;
    for (int i = 0; i < levels; ++i) {
        arrays += '[';
        schemas += R"({"items":)";
        ends += '}';
    }
    const auto document =
        json(R"({"x-a":)" + arrays + std::string(levels, ']') + R"(,"components":{"schemas":{"A":)" +
             schemas + R"({"type":1,"title":2})" + ends + "}}}");
    Formatter().run(*document);
    EXPECT_EQ(document->root()->size(), 2u);
    const jv::JV* deepest = document->lookup("/components/schemas/A");
    while (const jv::JV* items = deepest->get("items"))
        deepest = items;
    EXPECT_EQ(document->keysOf(deepest), (std::vector<std::string_view>{"title", "type"}));
}

} // namespace
} // namespace specloom::openapi_format
