#include "jv/deser.h"
#include "jv/json_writer.h"
#include "jv_generator/formats.h"
#include "jv_generator/generator.h"
#include "jv_generator/random_engine.h"
#include "openapi/reader.h"

#include <algorithm>   // std::ranges::count
#include <memory>      // std::make_shared, std::unique_ptr
#include <set>         // std::set
#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::jv_generator {
namespace {

using testing::MatchesRegex;

/// A document with the schemas of components, given as the members of a JSON object.
std::unique_ptr<openapi::ReadResult> documentWith(std::string_view schemas,
                                                  std::string_view version = "3.1.0") {
    const std::string text = "{\"openapi\": \"" + std::string(version) +
                             "\", \"info\": {\"title\": \"t\", \"version\": \"1\"}, \"paths\": {}, "
                             "\"components\": {\"schemas\": {" +
                             std::string(schemas) + "}}}";
    jv::LoadOptions options;
    options.format = jv::DocumentFormat::Json;
    return openapi::read(jv::parseDocument(text, options), std::make_shared<openapi::SchemaFormatRegistry>());
}

std::string textOf(std::unique_ptr<jv::JV> value) {
    jv::JVDocument document;
    document.setRoot(std::move(value));
    jv::JSONWriter writer;
    writer.write(document);
    return std::move(writer).output();
}

/// `count` values for the schema "A", one in a line, or the refusal.
std::string valuesOf(std::string_view schemas, int count = 5, std::string_view version = "3.1.0",
                     const GeneratorConfig& config = {}) {
    const auto document = documentWith(schemas, version);
    Generator generator;
    generator.config() = config;
    std::string text;
    try {
        generator.setSchema(*document->nodeAtPointer("/components/schemas/A"));
        for (int i = 0; i < count; ++i)
            text += textOf(generator.generate()) + "\n";
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return text;
}

struct Row {
    std::string_view schema;
    std::string_view lines; ///< a regular expression for all values together
};

// That they fit is what the generator makes sure of; this is about what else they are to be.
TEST(Generator, makesTheParts) {
    const Row rows[] = {
        {R"("A": {})", "(42\n)+"},
        {R"("A": {"enum": ["x", 7]})", "(\"x\"\n|7\n)+"},
        {R"("A": {"type": "boolean", "enum": [true, "x"]})", "(true\n)+"},
        {R"("A": {"enum": [1e999, {"a": [1e999]}, 7]})", "(7\n)+"},
        {R"("A": {"type": "null"})", "(null\n)+"},
        {R"("A": {"type": "integer"})", "([0-9]\n|10\n)+"},
        {R"("A": {"type": "integer", "minimum": 100})", "(10[0-9]\n|110\n)+"},
        {R"("A": {"type": "integer", "minimum": 18446744073709551614})",
         "(1844674407370955161[45]\n|1.8446744073709552e[+]19\n)+"},
        {R"("A": {"type": "number", "exclusiveMinimum": 0.001, "exclusiveMaximum": 0.002})",
         "(0.001[0-9]+\n)+"},
        {R"("A": {"type": "number", "multipleOf": 0.05})", "([0-9](.[0-9][05]?)?\n|10\n)+"},
        {R"("A": {"type": "string", "minLength": 3})", "(\"[a-z]+\"\n)+"},
        {R"("A": {"type": "string", "format": "uuid"})", "(\"[-0-9a-f]+\"\n)+"},
        {R"("A": {"type": "string", "format": "email", "maxLength": 9})", "(\"[a-z]+@e.co\"\n)+"},
        {R"("A": {"type": "object", "required": ["a"], "properties": {"b": {"const": 1}}})",
         "([{]\"a\":42,\"b\":1[}]\n)+"},
        {R"("A": {"type": "array", "items": {"const": 1}, "maxItems": 1})", "(\\[1]\n)+"},
        {R"("A": {"type": "array", "items": {"type": "boolean"}, "uniqueItems": true, "minItems": 2})",
         "(\\[(true,false|false,true)]\n)+"},
        {R"("A": {"properties": {"a": {"const": 1}}})", "([{]\"a\":1[}]\n)+"},
        {R"("A": {"not": {"type": ["number", "string", "array", "object", "boolean"]}})", "(null\n)+"},
        {R"("A": {"oneOf": [{"type": "object", "properties": {"a": {"type": "string"}}}, {"type": "object"}]})",
         "([{]\"a\":.*[}]\n)+"},
        {R"("A": {"type": "object", "additionalProperties": false, "properties": {"a": false, "b": {"const": 1}}})",
         "([{]\"b\":1[}]\n)+"},
        {R"("A": {"type": "object", "properties": {"a": {"$ref": "#/components/schemas/A"}, "b": {"const": 1}}})",
         "([{]\"a\":[{]\"a\":[{]\"b\":1[}],\"b\":1[}],\"b\":1[}]\n)+"},
        {R"("A": {"if": {"required": ["a"]}, "then": {"required": ["b"]}, "else": {"required": ["c"]},
            "type": "object", "properties": {"a": {"const": 1}, "b": {"const": 2}, "c": {"const": 3}}})",
         "([{](\"a\":1,\"b\":2(,\"c\":3)?|(\"b\":2,)?\"c\":3)[}]\n)+"},
        {R"("A": {"type": "array", "prefixItems": [{"const": 1}], "contains": {"const": 2}, "items": {"type": "integer"}, "maxItems": 2})",
         "(\\[1,2]\n)+"},
        {R"("A": {"oneOf": [{"$ref": "#/components/schemas/Cat"}],
             "discriminator": {"propertyName": "kind", "mapping": {"meow": "#/components/schemas/Cat"}}},
            "Cat": {"type": "object", "properties": {"kind": {"type": "string"}}})",
         "([{]\"kind\":\"meow\"[}]\n)+"},
        // What `contains` has evaluated is not unevaluated.
        {R"("A": {"type": "array", "contains": {"const": 1}, "minItems": 2, "maxItems": 2, "unevaluatedItems": {"const": 2}})",
         "(\\[1,[12]]\n)+"},
        {R"("A": {"type": "array", "contains": {"const": 1}, "unevaluatedItems": false, "minItems": 3, "maxItems": 3})",
         "(\\[1,1,1]\n)+"},
        {R"("A": {"type": "array", "contains": {"const": 1}, "maxContains": 2, "items": {"enum": [1]}, "minItems": 2})",
         "(\\[1,1]\n)+"},
        // Opposites of what is about names, and about what is left.
        {R"("A": {"type": "object", "not": {"propertyNames": {"maxLength": 3}}, "additionalProperties": {"const": 1}})",
         "([{][^\n]*\"[a-z][a-z][a-z][a-z]+\":1[^\n]*[}]\n)+"},
        {R"("A": {"type": "object", "not": {"not": {"not": {"propertyNames": {"const": "a"}}}}, "minProperties": 1})",
         "([{](\"[a-z ]+\":42,?)+[}]\n)+"},
        {R"("A": {"type": "object", "properties": {"a": {"const": 1}}, "not": {"unevaluatedProperties": false}})",
         "([{]\"a\":1,\"[a-z]+\":42[}]\n)+"},
        {R"("A": {"type": "array", "not": {"prefixItems": [true], "unevaluatedItems": {"type": "integer"}}, "items": {"type": ["integer", "null"]}})",
         "(\\[.*null.*]\n)+"},
        {R"("A": {"oneOf": [{"properties": {"b": {}}, "unevaluatedProperties": false}, {"properties": {"a": {}}, "unevaluatedProperties": false}], "type": "object", "additionalProperties": {"const": 1}})",
         "([{]\"[ab]\":1[}]\n)+"},
        // An anchor is one schema of the document.
        {R"("A": {"$dynamicRef": "#b", "minimum": 5}, "B": {"$dynamicAnchor": "b", "type": "integer", "maximum": 6})",
         "([56]\n)+"},
    };
    for (const Row& row : rows) {
        EXPECT_THAT(valuesOf(row.schema), MatchesRegex(std::string(row.lines))) << row.schema;
    }
}

TEST(Generator, readsTheWordsOfOldDocuments) {
    const Row rows[] = {
        {R"("A": {"type": "integer", "nullable": true, "enum": [null]})", "(null\n)+"},
        {R"("A": {"nullable": true, "allOf": [{"type": "string", "enum": ["x"]}]})", "(\"x\"\n)+"},
        {R"("A": {"type": "integer", "minimum": 3, "exclusiveMinimum": true, "maximum": 4})", "(4\n)+"},
    };
    for (const Row& row : rows)
        EXPECT_THAT(valuesOf(row.schema, 5, "3.0.3"), MatchesRegex(std::string(row.lines))) << row.schema;
}

TEST(Generator, refusesWhatHasNoValue) {
    const Row rows[] = {
        {R"("A": false)",
         "No value fits the schema at /components/schemas/A: Cannot generate a JV object for a falsy schema"},
        {R"("A": {"type": "boolean", "enum": ["x"]})", ".*: Boolean schema with no true or false value"},
        {R"("A": {"type": "object", "required": ["b"], "properties": {"b": {"$ref": "#/components/schemas/B"}}},
            "B": {"allOf": [{"type": "string"}, {"type": "null"}]})",
         ".*/A: its types exclude each other .*/B."},
        {R"("A": {"type": "object", "required": ["a"], "properties": {"a": {"$ref": "#/components/schemas/A"}}})",
         ".*: it asks for itself without end"},
        {R"("A": {"oneOf": [{"type": "string"}, {"type": "string"}]})", "No value fits the schema .*"},
        {R"("A": {"type": "integer", "minimum": 3, "maximum": 2})", ".*: there is no number in its range"},
        {R"("A": {"type": "array", "minItems": 100000001})", ".* has more than 100000000 values and bytes"},
        {R"("A": {"type": "array", "minItems": 100000, "items": {"type": "array", "minItems": 100000}})",
         ".* has more than 100000000 values and bytes"},
        {R"("A": {"type": "string", "minLength": 100000001})", ".* has more than 100000000 values and bytes"},
    };
    for (const Row& row : rows)
        EXPECT_THAT(valuesOf(row.schema), MatchesRegex(std::string(row.lines))) << row.schema;
}

TEST(Generator, makesWhatIsDemandedInMasses) {
    const std::string values = valuesOf(
        R"("A": {"type": "array", "minItems": 200000, "uniqueItems": true, "items": {"type": "integer"}})",
        1);
    EXPECT_EQ(std::ranges::count(values, ','), 199999);
}

TEST(Generator, goesOnInOneSequence) {
    constexpr std::string_view schema =
        R"("A": {"type": "object", "properties": {"a": {"type": "string"}, "b": {"type": "number"}}})";
    const std::string ten = valuesOf(schema, 10);
    EXPECT_TRUE(ten.starts_with(valuesOf(schema, 3)));
    EXPECT_NE(ten.substr(0, ten.find('\n')), ten.substr(ten.find('\n') + 1, ten.find('\n')));
}

TEST(Generator, makesTheSameOfManySchemasAsOfEach) {
    const auto document = documentWith(
        R"("A": {"type": "object", "properties": {"b": {"$ref": "#/components/schemas/B"}}, "required": ["b"]},
           "B": {"type": "string", "minLength": 3},
           "C": {"type": "array", "items": {"$ref": "#/components/schemas/A"}, "minItems": 2},
           "D": {"allOf": [{"type": "string"}, {"type": "integer"}]},
           "E": {"type": "object", "properties": {"0": {"type": "integer"}}, "required": ["0"]})");
    std::vector<const openapi::Node*> schemas;
    for (const char* name : {"A", "B", "C", "D", "E"})
        schemas.push_back(document->nodeAtPointer("/components/schemas/" + std::string(name)));
    Generator several;
    several.setSchemas(schemas);
    for (const std::size_t at : {4U, 2U, 0U, 1U, 2U, 4U}) {
        several.choose(*schemas[at]);
        Generator one(*schemas[at]);
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(textOf(several.generate()), textOf(one.generate())) << at;
    }
    EXPECT_THROW(several.choose(*schemas[3]), NoValueError);
    several.choose(*schemas[4]);
    EXPECT_NE(textOf(several.generate()), "");
}

TEST(Generator, keepsToTheConfiguration) {
    GeneratorConfig config;
    config.setNumberRange(5, 5);
    config.setLengthRange(4, 4);
    config.setItemsRange(2, 2);
    config.setPropertiesRange(0, 1);
    EXPECT_THAT(
        valuesOf(
            R"("A": {"type": "array", "items": {"type": "object", "properties": {"a": {"type": "integer"}, "b": {"type": "string"}}}})",
            9, "3.1.0", config),
        MatchesRegex("(\\[([{](\"a\":5|\"b\":\"[a-z][a-z][a-z][a-z]\")[}],?)([{](\"a\":5|\"b\":\"[a-z][a-z]["
                     "a-z][a-z]\")[}])]\n)+"));
    EXPECT_THROW(config.setItemsRange(5, 2), std::invalid_argument);
}

// A huge part that need not be there is left out.
TEST(Generator, leavesOutWhatIsHuge) {
    EXPECT_THAT(
        valuesOf(
            R"("A": {"type": "object", "properties": {"a": {"type": "array", "minItems": 50000}, "b": {"anyOf": [{"type": "array", "minItems": 50000}, {"const": 1}]}}})"),
        MatchesRegex("([{]\"b\":1[}]\n)+"));
}

// So no text of a format has to be looked at.
TEST(Formats, areMadeAsTheyAreChecked) {
    RandomEngine engine;
    for (const std::string_view name : formatNames()) {
        const TextCheck check = textCheckOf(name);
        for (std::uint64_t most = 1; most <= 72; ++most) {
            for (const TextLength& length :
                 {TextLength{0, UINT64_MAX}, {0, most}, {most, most}, {most, UINT64_MAX}}) {
                std::string text;
                textMakerOf(name)(engine, length, text);
                EXPECT_TRUE(check == nullptr || check(text)) << name << ": " << text;
            }
        }
    }
}

TEST(RandomEngine, drawsEachNumberOfARange) {
    RandomEngine engine;
    for (const std::uint64_t bound : {1U, 2U, 3U, 7U, 8U, 100U}) {
        std::set<std::uint64_t> drawn;
        for (std::uint64_t i = 0; i < 40 * bound; ++i)
            drawn.insert(engine.below(bound));
        EXPECT_EQ(drawn.size(), bound);
        EXPECT_EQ(*drawn.rbegin(), bound - 1);
    }
    std::uint64_t bits = 0;
    for (int i = 0; i < 64; ++i)
        bits |= engine.between(0, UINT64_MAX);
    EXPECT_EQ(bits, UINT64_MAX);
    EXPECT_EQ(engine.between(UINT64_MAX, UINT64_MAX), UINT64_MAX);
}

TEST(RandomEngine, isTheMinimalStandardOne) {
    RandomEngine engine;
    std::uint32_t draw = 0;
    for (int i = 0; i < 10000; ++i)
        draw = engine.next();
    EXPECT_EQ(draw, 399268537U); // of std::minstd_rand, as the C++ standard gives it
}

} // namespace
} // namespace specloom::jv_generator
