#include "jv/json_reader.h"
#include "jv_schema/schema.h"
#include "test_support/failure.h"
#include "test_support/texts.h"

#include <algorithm> // std::all_of
#include <string>    // std::string
#include <vector>    // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::jv::schema {
namespace {

using test_support::failureOf;
using test_support::repeated;

[[nodiscard]] Schema compiled(const std::string& text, const CompileOptions& options = {}) {
    return Schema::compile(*parseJSON(text)->root(), options);
}

[[nodiscard]] std::vector<std::string> errorsOf(const Schema& schema, const std::string& instance) {
    const auto document = parseJSON(instance);
    const std::vector<ValidationError> errors = schema.validate(*document->root());
    EXPECT_EQ(schema.isValid(*document->root()), errors.empty());
    std::vector<std::string> lines;
    for (const ValidationError& error : errors)
        lines.push_back(error.instancePointer + " | " + error.schemaLocation + " | " + error.keyword + " | " +
                        error.message);
    return lines;
}

TEST(SchemaErrors, sayWhereAndWhat) {
    struct Case {
        std::string schema;
        std::string instance;
        std::vector<std::string> errors;
    };
    const std::vector<Case> cases = {
        {R"({"type": "string"})", "3", {" | #/type | type | expected string, found integer"}},
        {R"({"type": ["string", "null", "integer"]})",
         "3.5",
         {" | #/type | type | expected string, null or integer, found number"}},
        {R"({"required": ["title", "a/b"], "properties": {"a~b": {"maxLength": 1}}})",
         R"({"a~b": "xy"})",
         {" | #/required | required | missing property 'title'",
          " | #/required | required | missing property 'a/b'",
          "/a~0b | #/properties/a~0b/maxLength | maxLength | must have at most 1 character, has 2"}},
        {R"({"$id": "http://x/y", "items": {"$ref": "#/$defs/p"}, "$defs": {"p": {"minimum": 1}}})",
         "[1, 0]",
         {"/1 | http://x/y#/$defs/p/minimum | minimum | must be at least 1, is 0"}},
        {R"({"additionalProperties": false, "patternProperties": {"^x-": {"const": 1}}})",
         R"({"x-a": 2, "y": 3})",
         {"/x-a | #/patternProperties/^x-/const | const | expected 1, found 2",
          "/y | #/additionalProperties | additionalProperties | unknown property 'y'"}},
        {R"({"$ref": "#/$defs/a", "unevaluatedProperties": false, "$defs": {"a": {"properties": {"p": true}}}})",
         R"({"p": 1, "q": 2})",
         {"/q | #/unevaluatedProperties | unevaluatedProperties | unknown property 'q'"}},
        {R"({"enum": ["a", null, [1]]})",
         R"("b")",
         {" | #/enum | enum | expected one of 'a', null, an array, found 'b'"}},
        {R"({"propertyNames": {"pattern": "^[a-z]+$"}})",
         R"({"A1": 1})",
         {"/A1 | #/propertyNames | propertyNames | property name 'A1' is not allowed: must match pattern "
          "'^[a-z]+$'"}},
        {R"({"dependentRequired": {"a": ["b"]}, "uniqueItems": true})",
         R"({"a": 1})",
         {" | #/dependentRequired | dependentRequired | missing property 'b', which 'a' requires"}},
        {R"({"prefixItems": [true], "items": false, "uniqueItems": true})",
         "[1, 1]",
         {"/1 | #/items | items | item is not allowed",
          " | #/uniqueItems | uniqueItems | items 0 and 1 are equal"}},
        {R"({"contains": {"type": "string"}, "minContains": 2})",
         R"(["a", 1])",
         {" | #/contains | contains | must contain at least 2 matching items, contains 1"}},
        {R"({"exclusiveMaximum": 5, "multipleOf": 0.1})",
         "5.05",
         {" | #/exclusiveMaximum | exclusiveMaximum | must be less than 5, is 5.05",
          " | #/multipleOf | multipleOf | must be a multiple of 0.1, is 5.05"}},
        {R"({"if": {"type": "object"}, "then": {"required": ["a"]}, "not": {"required": ["b"]}})",
         R"({"b": 1})",
         {" | #/not | not | must not match the schema of 'not'",
          " | #/then/required | required | missing property 'a'"}},
        {R"({"pattern": "^a"})",
         "\"" + repeated("\xc3\xa4", 50) + "\"",
         {" | #/pattern | pattern | must match pattern '^a'"}},
        {R"({"const": 1})",
         "\"" + repeated("x\xc3\xa4", 50) + "\"",
         {" | #/const | const | expected 1, found '" + repeated("x\xc3\xa4", 20) + "...'"}},
        // Told once, although two ways lead there.
        {R"({"allOf": [{"$ref": "#/$defs/s"}, {"$ref": "#/$defs/s"}], "$defs": {"s": {"type": "string"}}})",
         "1",
         {" | #/$defs/s/type | type | expected string, found integer"}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.schema);
        EXPECT_EQ(errorsOf(compiled(row.schema), row.instance), row.errors);
    }
    const std::string format = R"({"format": "date"})";
    CompileOptions asserting;
    asserting.assertFormats = true;
    EXPECT_THAT(errorsOf(compiled(format, asserting), "\"2024-13-01\""),
                testing::ElementsAre(" | #/format | format | must have format 'date', is '2024-13-01'"));
    EXPECT_THAT(errorsOf(compiled(format), "\"2024-13-01\""), testing::IsEmpty());
}

TEST(SchemaErrors, areThoseOfTheClosestBranch) {
    const Schema schemaOrReference = compiled(R"({
        "oneOf": [{"$ref": "#/$defs/schema"}, {"$ref": "#/$defs/reference"}, {"type": "boolean"}],
        "$defs": {
            "schema": {"type": "object", "required": ["name"], "additionalProperties": false, "properties": {
                "name": true, "type": {"enum": ["a", "b"]}, "items": {"$ref": "#"}}},
            "reference": {"type": "object", "required": ["$ref"], "properties": {"$ref": {"type": "string"}}}}})");
    const Schema discriminated = compiled(R"({
        "anyOf": [
            {"properties": {"in": {"const": "path"}, "style": {"enum": ["x"]}}, "required": ["required"]},
            {"properties": {"in": {"const": "query"}, "style": {"enum": ["y"]}, "n": {"type": "integer"}}}]})");
    const Schema types = compiled(R"({"anyOf": [{"type": "string"}, {"type": "null"}]})");
    const Schema one = compiled(R"({"oneOf": [{"type": "integer"}, {"minimum": 2}, false]})");
    struct Case {
        const Schema& schema;
        std::string instance;
        std::vector<std::string> errors;
    };
    const std::vector<Case> cases = {
        {schemaOrReference,
         R"({"name": 1, "type": "c"})",
         {"/type | #/$defs/schema/properties/type/enum | enum | expected one of 'a', 'b', found 'c'"}},
        {schemaOrReference,
         R"({"$ref": 5})",
         {"/$ref | #/$defs/reference/properties/$ref/type | type | expected string, found integer"}},
        {schemaOrReference,
         R"({"type": "a"})",
         {" | #/$defs/schema/required | required | missing property 'name'"}},
        {schemaOrReference,
         R"({"name": 1, "items": {"name": 1, "typ": 1}})",
         {"/items/typ | #/$defs/schema/additionalProperties | additionalProperties | unknown property "
          "'typ'"}},
        {discriminated,
         R"({"in": "query", "n": "1"})",
         {"/n | #/anyOf/1/properties/n/type | type | expected integer, found string"}},
        {types, "3", {" | #/anyOf | anyOf | expected string or null, found integer"}},
        {one, "3", {" | #/oneOf | oneOf | must match exactly one alternative, matches those at 0 and 1"}},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.instance);
        EXPECT_EQ(errorsOf(row.schema, row.instance), row.errors);
    }
}

TEST(Schema, refusesWhatCannotBeCompiled) {
    struct Case {
        std::string schema;
        std::string text;
    };
    const std::vector<Case> cases = {
        {"7", "schema is neither an object nor a boolean, but of type number at #"},
        {R"({"properties": {"a/b": []}})",
         "schema is neither an object nor a boolean, but of type array at #/properties/a~1b"},
        {R"({"type": "strin"})", "'strin' is no type at #/type"},
        {R"({"required": true})", "'required' must be of type array, not boolean at #/required"},
        {R"({"minLength": -1})", "'minLength' must be an integer of at least 0 at #/minLength"},
        {R"({"multipleOf": 0})", "'multipleOf' must be greater than 0 at #/multipleOf"},
        {R"({"$id": "http://x/y", "not": {"$ref": "z#a"}})",
         "cannot resolve '$ref' to 'z#a' at http://x/y#/not/$ref"},
        {R"({"allOf": [{"pattern": "("}]})", "invalid pattern '(': Unterminated group at #/allOf/0/pattern"},
        {R"({"$schema": "http://x/meta"})", "meta-schema 'http://x/meta' is not known at #"},
        {R"({"$ref": "#/$defs/a", "$defs": {"a": {"$ref": "#"}}})", "'$ref' leads back to itself at #/$ref"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(failureOf<CompileError>([&] { return compiled(row.schema); }), row.text) << row.schema;
}

TEST(Schema, decidesNumbersOfAllKinds) {
    struct Case {
        std::string schema;
        std::string instance;
        bool valid;
    };
    const std::vector<Case> cases = {
        {R"({"multipleOf": 3})", "300000000000000000000000000000000000000000003", true},
        {R"({"multipleOf": 7})", "300000000000000000000000000000000000000000003", false},
        {R"({"multipleOf": 1e400})", "2e401", true},
        {R"({"multipleOf": 1e400})", "1e399", false},
        {R"({"multipleOf": 1e-400})", "2", true},
        {R"({"multipleOf": 0.01})", "4.35", true},
        {R"({"multipleOf": 0.3})", "0.1", false},
        {R"({"multipleOf": 1})", "-9223372036854775808", true},
        {R"({"multipleOf": 18446744073709551615})", "18446744073709551615", true},
        {R"({"maximum": 1e400})", "1e401", false},
        {R"({"minimum": 9007199254740993})", "9007199254740992.0", false},
        {R"({"exclusiveMinimum": 18446744073709551615})", "18446744073709551616", true},
        {R"({"maximum": 0.1})", "0.1000000000000000000000001", false},
        {R"({"type": "integer"})", "1.5e200", true},
        {R"({"type": "integer"})", "1e999999", true},
        {R"({"type": "integer"})", "1000000000000000000000.5", false},
        {R"({"const": 1})", "1.00000000000000000000000", true},
        {R"({"uniqueItems": true})", "[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,1.00000000000000000000000]",
         false},
        {R"({"enum": [1,2,3,4,5,6,7,8,9,10]})", "1.00000000000000000000000", true},
        {R"({"minLength": 1e30})", "\"\"", false},
        {R"({"$schema": "http://json-schema.org/draft-04/schema#", "type": "integer"})", "1.0", false},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.schema + " " + row.instance);
        EXPECT_EQ(errorsOf(compiled(row.schema), row.instance).empty(), row.valid);
    }
    EXPECT_THROW(static_cast<void>(compiled(R"({"multipleOf": 100000000000000000000000000000000000000001})")),
                 CompileError);
}

TEST(Schema, keepsItsLimits) {
    const std::string tooDeep = "schema is nested more than 1500 levels deep";
    const std::string endless = "schema refers to itself without end";
    const auto chain = [](const std::string& keyword) { return R"({")" + keyword + R"(": {"a": )"; };
    const std::string deepSchema = repeated(chain("properties"), 100000) + "{}" + repeated("}}", 100000);
    // Each level reaches the next one by two ways.
    const auto lattice = [](const std::string& keyword, const std::string& last) {
        std::string text = R"({"$ref": "#/$defs/0", "$defs": {)";
        for (int i = 0; i < 40; ++i) {
            const std::string next = R"({"$ref": "#/$defs/)" + std::to_string(i + 1) + R"("})";
            text += "\"" + std::to_string(i) + R"(": {")" + keyword + R"(": [)" + next + ", " + next + "]}, ";
        }
        return text + R"("40": )" + last + "}}";
    };
    std::string million = "[";
    for (int i = 0; i < 1000000; ++i)
        million += std::to_string(i) + ",";
    million += "999999]";
    struct Case {
        std::string name;
        std::string schema;
        std::string instance;
        std::string message; ///< of the last error; empty when valid
    };
    const std::vector<Case> cases = {
        {"deep schema", deepSchema, R"({"a": {}})", ""},
        {"deep schema and instance", deepSchema, repeated(R"({"a": )", 90000) + "1" + repeated("}", 90000),
         tooDeep},
        {"deep not", repeated(R"({"not": )", 100000) + "{}" + repeated("}", 100000), "1", tooDeep},
        {"deep allOf", repeated(R"({"allOf": [)", 100000) + "{}" + repeated("]}", 100000), "1", tooDeep},
        {"deep anyOf", repeated(R"({"anyOf": [false, )", 100000) + "{}" + repeated("]}", 100000), "1",
         tooDeep},
        {"deep anyOf, within the limit",
         repeated(R"({"anyOf": [false, )", 1400) + "false" + repeated("]}", 1400), "1",
         "no value is allowed"},
        {"deep instance", R"({"items": {"$ref": "#"}})", repeated("[", 100000) + repeated("]", 100000),
         tooDeep},
        {"deep instance, within the limit", R"({"additionalProperties": {"$ref": "#"}, "type": "object"})",
         repeated(R"({"a": )", 1400) + "1" + repeated("}", 1400), "expected object, found integer"},
        {"deep instance that nobody enters",
         R"({"type": "array", "uniqueItems": true, "not": {"const": [[]]}})",
         repeated("[", 100000) + repeated("]", 100000), ""},
        {"endless in place", R"({"allOf": [{"$ref": "#"}]})", "1", endless},
        {"endless in a negation", R"({"not": {"$ref": "#"}})", "1", endless},
        {"endless alternative", R"({"anyOf": [{"type": "string"}, {"$ref": "#"}]})", "1", endless},
        {"endless alternative not taken", R"({"anyOf": [{"type": "string"}, {"$ref": "#"}]})", "\"\"", ""},
        {"endless dynamically", R"({"$dynamicAnchor": "a", "$dynamicRef": "#a"})", "1", endless},
        {"many ways, valid", lattice("allOf", "true"), "1", ""},
        {"many ways, invalid", lattice("allOf", R"({"type": "string"})"), "1",
         "expected string, found integer"},
        {"many ways to choose from", lattice("oneOf", R"({"type": "string"})"), "1",
         "schema takes more than 50000000 steps"},
        {"a million items, two equal", R"({"uniqueItems": true})", million,
         "items 999999 and 1000000 are equal"},
        {"a million items, all evaluated", R"({"contains": {"type": "integer"}, "unevaluatedItems": false})",
         million, ""},
        {"a million faults", R"({"items": {"type": "string"}})", million, "expected string, found integer"},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.name);
        const Schema schema = compiled(row.schema);
        const auto document = parseJSON(row.instance);
        const std::vector<ValidationError> errors = schema.validate(*document->root());
        EXPECT_EQ(schema.isValid(*document->root()), row.message.empty());
        EXPECT_EQ(errors.empty() ? "" : errors.back().message, row.message);
        EXPECT_LE(errors.size(), mostErrors);
    }
}

TEST(SchemaRegistry, givesWhatReferencesName) {
    SchemaRegistry registry;
    registry.add(
        "http://x/a.json#",
        *parseJSON(R"({"$id": "http://y/b", "$defs": {"n": {"$anchor": "n", "type": "null"}}})")->root());
    CompileOptions options;
    options.baseUri = "http://x/root.json";
    options.registry = &registry;
    for (const std::string reference :
         {"a.json#n", "http://y/b#n", "/./z/../a.json#/$defs/n", "//y/b#%2F%24defs/n"}) {
        SCOPED_TRACE(reference);
        const Schema schema = compiled(R"({"$ref": ")" + reference + R"("})", options);
        EXPECT_THAT(
            errorsOf(schema, "1"),
            testing::ElementsAre(" | http://y/b#/$defs/n/type | type | expected null, found integer"));
    }
    // The meta-schemas are always there.
    EXPECT_TRUE(
        compiled(R"({"$ref": "http://json-schema.org/draft-07/schema#"})").isValid(*parseJSON("{}")->root()));
    EXPECT_THAT(errorsOf(compiled(R"({"$ref": "https://json-schema.org/draft/2020-12/schema"})"),
                         R"({"items": {"type": 1}})"),
                testing::SizeIs(1));
}

} // namespace
} // namespace specloom::jv::schema
