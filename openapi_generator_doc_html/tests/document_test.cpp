#include "foundation/strings.h"
#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi_generator_doc_html/document/description.h"
#include "openapi_generator_doc_html/document/properties.h"
#include "openapi_generator_doc_html/document/samples.h"
#include "openapi_generator_doc_html/document/type_text.h"
#include "openapi_generator_doc_html/document/usages.h"
#include "test_support/failure.h"

#include <memory>      // std::make_shared, std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace specloom::openapi_generator::doc_html {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::unique_ptr<openapi::ReadResult> readYaml(std::string_view members) {
    jv::LoadOptions options;
    options.format = jv::DocumentFormat::Yaml;
    const std::string text =
        "openapi: 3.1.0\ninfo: {title: t, version: '1'}\nservers: [{url: 'https://a.example/'}]\n" +
        std::string(members);
    return openapi::read(jv::parseDocument(text, options), std::make_shared<openapi::SchemaFormatRegistry>());
}

/// With the components' schemas, in YAML.
std::unique_ptr<openapi::ReadResult> withSchemas(std::string_view schemas) {
    return readYaml("paths: {}\ncomponents: {schemas: {" + std::string(schemas) + "}}\n");
}

// ---- types

TEST(TypeText, tellsWhatASchemaAllows) {
    struct Row {
        std::string_view schema;
        std::string_view text;
    };
    const std::vector<Row> rows = {
        {"{}", "<any>"},
        {"true", "<any>"},
        {"{description: d}", "<any>"},
        {"false", "<empty>"},
        {"{allOf: [{type: string}, {type: integer}]}", "<empty>"},
        {"{type: ['null', object, array, string, number, integer, boolean]}",
         "boolean or integer or number or string or array or object or null"},
        {"{type: integer, format: int32}", "integer(int32)"},
        {"{type: number, format: int32}", "number(int32)"},
        {"{type: [string, 'null'], format: date-time}", "string(date-time) or null"},
        {"{type: integer, format: date}", "integer"},
        {"{type: array}", "array"},
        {"{type: array, items: {}}", "array of <any>"},
        {"{type: array, items: {type: string}}", "array of strings"},
        {"{type: array, items: {type: [integer, 'null'], format: int32}}",
         "array of integers(int32) or nulls"},
        {"{type: array, items: {type: array, items: {type: boolean}}}", "array of arrays of booleans"},
        {"{type: array, items: false}", "array of <empty>"},
        {"{$ref: '#/components/schemas/Named'}", "object"},
        {"{oneOf: [{$ref: '#/components/schemas/Named'}, {type: 'null'}]}", "object or null"},
        {"{anyOf: [{type: string}, {}]}", "<any>"},
        {"{allOf: [{type: [string, 'null']}, {type: string, format: uuid}]}", "string(uuid)"},
        {"{allOf: [{type: number}, {type: integer}]}", "integer"},
        {"{enum: [a, 1, null]}", "integer or string or null"},
        {"{enum: [1, 1.5]}", "number"},
        {"{type: [string, 'null'], enum: [a]}", "string"},
        {"{properties: {a: {}}}", "object"},
        {"{pattern: a, minimum: 1}", "<any>"},
        {"{format: date}", "string(date)"},
        {"{allOf: [{$ref: '#/components/schemas/A'}, {type: string}]}", "string"},
        {"{type: array, items: {$ref: '#/components/schemas/A'}}", "array"},
    };
    for (const Row& row : rows) {
        const auto document = withSchemas("Named: {type: object}, A: " + std::string(row.schema));
        EXPECT_EQ(typeText(document->nodeAtPointer("/components/schemas/A")), row.text) << row.schema;
    }
    EXPECT_EQ(typeText(nullptr), "<any>");
}

TEST(TypeText, staysShortForSchemasThatReachOthersByManyWays) {
    std::string schemas = "S0: {type: string}";
    for (int i = 1; i <= 60; ++i) {
        const std::string below = "{$ref: '#/components/schemas/S" + std::to_string(i - 1) + "'}";
        schemas += ", S" + std::to_string(i) + ": {anyOf: [{type: array, items: " + below +
                   "}, {type: array, items: {type: array, items: " + below + "}}]}";
    }
    const auto document = withSchemas(schemas);
    EXPECT_LT(typeText(document->nodeAtPointer("/components/schemas/S60")).size(), 1000U);
}

// ---- properties

std::string tableText(const std::vector<Property>& properties, std::size_t indent = 0) {
    std::string text;
    for (const Property& property : properties) {
        text.append(indent, ' ').append(property.name).append(": ").append(property.type);
        text.append(property.required ? ", required" : "").append(property.deprecated ? ", deprecated" : "");
        for (const Constraint& constraint : property.constraints)
            text.append(", ").append(constraint.name).append(" ").append(constraint.number);
        for (const std::string& value : property.enumeration)
            text.append(", =").append(value);
        text.append(property.resource ? " -> " + *property.resource : "");
        text.append(property.description ? " (" + *property.description + ")" : "") += '\n';
        text += tableText(property.properties, indent + 2);
    }
    return text;
}

TEST(Properties, goAsDeepAsTheyAreInPlace) {
    const auto document = readYaml(R"(
paths: {}
components:
  schemas:
    Base: {required: [id, late], properties: {id: {type: integer, minimum: 1, maximum: 1.0e+30}}}
    Alias: {$ref: '#/components/schemas/Base'}
    A:
      allOf:
        - $ref: '#/components/schemas/Base'
        - properties: {zeta: {type: string, minLength: 2, maxLength: 3, enum: [b, 1, {c: d}]}}
          required: [zeta]
        - $ref: '#/components/schemas/A'
      properties:
        late: {type: string, description: says it, deprecated: true}
        id: {description: the first one wins}
        inner:
          type: array
          minItems: 1
          maxItems: 2
          items: {properties: {deep: {properties: {deeper: true}, minProperties: 1, maxProperties: 2}}}
        named: {$ref: '#/components/schemas/Alias', description: here}
        list: {type: array, items: {type: array, items: {$ref: '#/components/schemas/A'}}}
        nullable: {anyOf: [{$ref: '#/components/schemas/A'}, {type: 'null'}]}
        mixed: {allOf: [{$ref: '#/components/schemas/Base'}, {properties: {more: {const: 1}}}]}
    List: {type: array, items: {$ref: '#/components/schemas/Base'}}
)");
    const auto table = [&](std::string_view name) {
        return tableText(propertiesOf(document->nodeAtPointer("/components/schemas/" + std::string(name))));
    };
    EXPECT_EQ(table("A"), "late: string, required, deprecated (says it)\n"
                          "id: <any>, required (the first one wins)\n"
                          "inner: array of objects, minItems 1, maxItems 2\n"
                          "  deep: object, minProperties 1, maxProperties 2\n"
                          "    deeper: <any>\n"
                          "named: object -> Alias (here)\n"
                          "list: array of arrays of objects -> A\n"
                          "nullable: object or null -> A\n"
                          "mixed: object -> Base\n"
                          "  more: integer, =1\n"
                          "zeta: string, required, minLength 2, maxLength 3, =b, =1, ={\"c\":\"d\"}\n");
    EXPECT_EQ(table("List"), "id: integer, required, minimum 1, maximum 1e+30\n");
    EXPECT_TRUE(propertiesOf(nullptr).empty());
}

TEST(Properties, tellOfParameters) {
    const auto document = readYaml(R"(
paths:
  /a:
    get:
      parameters:
        - {name: p, in: query, description: own, schema: {type: string, description: of schema}}
        - {name: q, in: header, required: true, content: {application/json: {schema: {$ref: '#/components/schemas/A'}}}}
      responses: {}
components: {schemas: {A: {type: object, properties: {b: {}}, deprecated: true}}}
)");
    std::vector<Property> rows;
    for (const openapi::Parameter* parameter :
         openapi::operationsOf(document->root()).front().operation->effectiveParameters())
        rows.push_back(propertyOf(*parameter));
    EXPECT_EQ(tableText(rows), "p: string (own)\nq: object, required, deprecated -> A\n");
}

// ---- samples

std::unique_ptr<openapi::ReadResult> withOperation(std::string_view path, std::string_view operation,
                                                   std::string_view rest = "") {
    std::string key(path);
    replaceAll(key, "'", "''");
    return readYaml("paths:\n  '" + key + "':\n    post:\n      responses: {}\n      " +
                    std::string(operation) + "\n" + std::string(rest));
}

RequestSamples requestOf(const openapi::ReadResult& document) {
    return Samples(document.root(), {}).request(openapi::operationsOf(document.root()).front());
}

/// The URL of a request, as curl gets it.
std::string urlOf(const openapi::ReadResult& document) {
    const std::string code = requestOf(document).curl->code;
    const std::size_t begin = code.rfind("\n  '") + 4;
    return code.substr(begin, code.find('\'', begin) - begin);
}

TEST(Samples, buildUrls) {
    struct Row {
        std::string_view path;
        std::string_view parameters;
        std::string_view url; ///< behind that of the server
    };
    const std::vector<Row> rows = {
        {"/", "", ""},
        {"//a", "", "a"},
        {"/a b/ü[0]\"<>^`|\\%zz%41", "", "a%20b/%C3%BC%5B0%5D%22%3C%3E%5E%60%7C%5C%25zz%41"},
        {"/{id}", "{name: id, in: path, required: true, example: 'a/b c', schema: {}}", "a%2Fb%20c"},
        {"/{user-id}.json", "{name: user-id, in: path, required: true, example: 1, schema: {}}", "1.json"},
        {"/{+id}", "{name: id, in: path, required: true, example: a/b, schema: {}}", "a/b"},
        {"/{id}",
         "{name: id, in: path, required: true, style: matrix, explode: true, example: [1, 2], schema: {}}",
         ";id=1;id=2"},
        {"/a{id}", "{name: id, in: path, required: true, style: label, example: [1, 2], schema: {}}",
         "a.1,2"},
        {"/{id}", "{name: id, in: path, required: true, example: [], schema: {}}", "id"},
        {"/{unknown}/{}/{not closed", "", "unknown//%7Bnot%20closed"},
        {"/a{?q,r}", "{name: q, in: query, example: x&y, schema: {}}", "a?q=x%26y&r=r"},
        {"/", "{name: ids, in: query, example: [1, 'b c'], schema: {}}", "?ids%5B%5D=1&ids%5B%5D=b%20c"},
        {"/", "{name: ids, in: query, explode: false, example: [1, 2], schema: {}}", "?ids%5B%5D=1,2"},
        {"/", "{name: ids, in: query, style: pipeDelimited, explode: false, example: [1, 2], schema: {}}",
         "?ids%5B%5D=1%7C2"},
        {"/", "{name: f, in: query, style: deepObject, example: {a b: 1, c: {d: [2]}}, schema: {}}",
         "?f%5Ba%20b%5D=1&f%5Bc%5D=%7B%22d%22%3A%5B2%5D%7D"},
        {"/", "{name: f, in: query, example: {a&b: '1=2', c: true}, schema: {}}", "?a%26b=1%3D2&c=true"},
        {"/", "{name: f, in: query, content: {application/json: {example: {a: [1]}}}}",
         "?f=%7B%22a%22%3A%5B1%5D%7D"},
        {"/",
         "{name: n, in: query, example: null, schema: {}}, {name: m, in: query, example: '', schema: {}}",
         "?m="},
        {"/a?b=c", "{name: d.e, in: query, example: 1, schema: {}}", "a?b=c&d.e=1"},
        {"/#a=b", "{name: d, in: query, example: 1, schema: {}}", "?d=1#a=b"},
        {"/", "{name: c, in: cookie, example: 1, schema: {}}", ""},
    };
    for (const Row& row : rows) {
        const auto document = withOperation(row.path, "parameters: [" + std::string(row.parameters) + "]");
        EXPECT_EQ(urlOf(*document), "https://a.example/" + std::string(row.url)) << row.path;
    }
}

TEST(Samples, takeTheNearestServer) {
    struct Row {
        std::string_view operation;
        std::string_view pathItem;
        std::string_view url;
    };
    const std::vector<Row> rows = {
        {"", "", "https://a.example/x"},
        {"", "servers: [{url: /p//}]", "/p/x"},
        {"servers: [{url: 'https://{host}.{b}/{c}/{d}', variables: {host: {default: h}, b: {default: '', "
         "enum: "
         "[e, f]}}}]",
         "servers: [{url: /p}]", "https://h.e/c/d/x"},
        {"servers: [{url: 'https://[::1]:80/a b'}]", "", "https://[::1]:80/a%20b/x"},
    };
    for (const Row& row : rows) {
        const auto document = withOperation("/x", row.operation, "    " + std::string(row.pathItem));
        EXPECT_EQ(urlOf(*document), row.url);
    }
}

TEST(Samples, needAServer) {
    jv::LoadOptions options;
    options.format = jv::DocumentFormat::Yaml;
    const auto document = openapi::read(
        jv::parseDocument(
            "{openapi: 3.0.0, info: {title: t, version: '1'}, paths: {/: {get: {responses: {}}}}}", options),
        std::make_shared<openapi::SchemaFormatRegistry>());
    EXPECT_EQ(test_support::failureOf([&] { return requestOf(*document); }), "No server found");
}

constexpr std::string_view awkward = R"(parameters:
        - {name: "X-It's", in: header, example: "a'b\\c\n", schema: {type: string}}
        - {name: content-type, in: header, example: text/plain, schema: {type: string}}
        - {name: X-List, in: header, example: [1, 2], schema: {}}
        - {name: X-Object, in: header, explode: true, example: {a: 1, b: c}, schema: {}}
      requestBody:
        content:
          application/vnd.a+json:
            examples:
              outside: {externalValue: 'https://b.example'}
              zeta: {$ref: '#/components/examples/E'}
              alpha: {value: not this one}
)";

TEST(Samples, quoteWhatTheyHold) {
    const auto document = withOperation(
        "/it's", awkward,
        "components: {examples: {E: {value: {z: \"it's \\\\ \\\"\", __proto__: [1, [], {}], a: null}}}}");
    const RequestSamples samples = requestOf(*document);
    EXPECT_FALSE(samples.curl->generated);
    EXPECT_EQ(samples.curl->code, R"(curl -L \
  -X POST \
  -H 'X-It'\''s: a'\''b\c
' \
  -H 'X-List: 1,2' \
  -H 'X-Object: a=1,b=c' \
  -H 'Content-Type: application/vnd.a+json' \
  'https://a.example/it'\''s' \
  -d '{
  "z": "it'\''s \\ \"",
  "__proto__": [
    1,
    [],
    {}
  ],
  "a": null
}')");
    EXPECT_EQ(samples.vanillaJs->code, R"(const json = await fetch('https://a.example/it\'s', {
  method: 'POST',
  headers: {
    'X-It\'s': 'a\'b\\c\n',
    'X-List': '1,2',
    'X-Object': 'a=1,b=c',
    'Content-Type': 'application/vnd.a+json',
  },
  body: JSON.stringify({
  "z": "it's \\ \"",
  ["__proto__"]: [
    1,
    [],
    {}
  ],
  "a": null
})
});)");
}

TEST(Samples, takeExamplesBeforeTheyMakeValues) {
    const auto document = readYaml(R"(
paths:
  /a:
    get:
      responses:
        '200': {description: '', content: {application/json: {schema: {$ref: '#/components/schemas/S'}, example: [1]}}}
        '201': {description: '', content: {application/json: {schema: {$ref: '#/components/schemas/S'}}}}
        '202': {description: '', content: {application/json: {schema: {type: string, examples: [first, second]}}}}
        '203': {description: '', content: {application/json: {schema: {const: made}}, application/a+json: {example: 1}}}
        '204': {description: '', content: {a/b+json: {schema: {const: made}}, text/plain: {schema: {type: string}}}}
        '205': {description: '', content: {'Application/JSON; charset=utf-8': {example: 2}}}
        '206': {description: '', content: {application/json: {}}}
        '207': {description: '', content: {application/json: {schema: {allOf: [{type: string}, {type: integer}]}}}}
        '208': {description: nothing}
components: {schemas: {S: {type: string, example: of the schema}}}
)");
    const openapi::OperationRef ref = openapi::operationsOf(document->root()).front();
    const auto textOf = [&](const SampleOptions& options) {
        std::string text;
        for (const ResponseSample& response : Samples(document->root(), options).responses(ref))
            text += response.status + (response.sample.generated ? "* " : " ") + response.sample.code + "\n";
        return text;
    };
    EXPECT_EQ(textOf({}),
              "200 [\n  1\n]\n201 \"of the schema\"\n202 \"first\"\n203* \"made\"\n204* \"made\"\n"
              "205 2\n");
    SampleOptions withoutExamples;
    withoutExamples.useResponseExamples = false;
    EXPECT_THAT(textOf(withoutExamples), HasSubstr("203* \"made\"\n"));
    EXPECT_THAT(textOf(withoutExamples), testing::Not(HasSubstr("of the schema")));

    std::string schemas;
    for (const ResponseSchema& schema : Samples(document->root(), {}).responseSchemas(ref))
        schemas += schema.status + " " + schema.mediaType + " " + schema.code.substr(0, 9) + "\n";
    EXPECT_THAT(schemas, testing::StartsWith("200 application/json {\n  \"$ref\n201"));
    EXPECT_THAT(schemas, HasSubstr("204 a/b+json {\n  \"cons\n204 text/plain {\n  \"type\n"));
}

TEST(Samples, failWithTheGenerator) {
    const auto document = withOperation(
        "/",
        "requestBody: {content: {application/json: {schema: {type: string, pattern: '(?<n>a)\\k<m>'}}}}");
    EXPECT_THAT(test_support::failureOf([&] { return requestOf(*document); }), HasSubstr("cannot be used"));
}

// ---- usages

TEST(Usages, goThroughComponentsOfEveryKind) {
    const auto document = readYaml(R"(
paths:
  /shared: {$ref: '#/components/pathItems/Shared'}
  /again: {$ref: '#/components/pathItems/Shared'}
  /parts:
    parameters:
      - {name: hidden, in: query, schema: {$ref: '#/components/schemas/Never'}}
      - {name: seen, in: query, schema: {$ref: '#/components/schemas/Seen'}}
    get:
      parameters: [{$ref: '#/components/parameters/P'}, {name: hidden, in: query}]
      requestBody: {$ref: '#/components/requestBodies/B'}
      responses: {'200': {$ref: '#/components/responses/R'}}
      callbacks: {c: {$ref: '#/components/callbacks/C'}}
    put: {responses: {}}
components:
  pathItems:
    Shared:
      get: {responses: {'200': {description: '', content: {a/b: {schema: {$ref: '#/components/schemas/Alias'}}}}}}
      put: {responses: {'200': {description: '', content: {a/b: {schema: {$ref: '#/components/schemas/Cycle'}}}}}}
  parameters: {P: {name: p, in: query, content: {a/b: {schema: {$ref: '#/components/schemas/OfParameter'}}}}}
  requestBodies: {B: {content: {a/b: {schema: {items: {$ref: '#/components/schemas/OfBody'}}}}}}
  headers: {H: {schema: {$ref: '#/components/schemas/OfHeader'}}}
  responses: {R: {description: '', headers: {h: {$ref: '#/components/headers/H'}}}}
  callbacks:
    C: {'{$url}': {post: {responses: {'200': {description: '', content: {a/b: {schema: {$ref: '#/components/schemas/OfCallback'}}}}}}}}
  schemas:
    Alias: {$ref: '#/components/schemas/Mapped'}
    Cycle: {properties: {again: {$ref: '#/components/schemas/Cycle'}}}
    Mapped: {discriminator: {propertyName: p, mapping: {a: OfName, b: '#/components/schemas/OfUri', c: None}}}
    Never: {}
    OfBody: {}
    OfCallback: {}
    OfHeader: {}
    OfName: {}
    OfParameter: {}
    OfUri: {}
    Seen: {}
)");
    const Usages usages(document->root());
    std::string text;
    for (const openapi::OperationRef& ref : openapi::operationsOf(document->root())) {
        text.append(openapi::operationKey(ref.method)).append(" ").append(ref.path).append(":");
        for (const std::string& schema : usages.schemasOf(ref))
            text.append(" ").append(schema);
        text += '\n';
    }
    EXPECT_EQ(text, "get /again: Alias Mapped OfName OfUri\n"
                    "put /again: Cycle\n"
                    "get /parts: OfBody OfCallback OfHeader OfParameter Seen\n"
                    "put /parts: Never Seen\n"
                    "get /shared: Alias Mapped OfName OfUri\n"
                    "put /shared: Cycle\n");
    std::vector<std::string> paths;
    for (const openapi::OperationRef& ref : usages.operationsOf("OfUri"))
        paths.emplace_back(ref.path);
    EXPECT_THAT(paths, ElementsAre("/again", "/shared"));
    EXPECT_TRUE(usages.operationsOf("Unknown").empty());
}

// ---- descriptions

TEST(Description, isMarkdownThatRunsNothing) {
    EXPECT_EQ(
        renderDescription(
            "# A\n\n| a | b |\n|--:|---|\n| {c} | <script>d</script> |\n\n[e](javascript:f) ![g](data:h)"),
        "<h4>A</h4>\n<table>\n<thead>\n<tr>\n<th align=\"right\">a</th>\n<th>b</th>\n</tr>\n</thead>\n"
        "<tbody>\n<tr>\n<td align=\"right\">&lcub;c&rcub;</td>\n"
        "<td>&lt;script&gt;d&lt;/script&gt;</td>\n</tr>\n</tbody>\n</table>\n<p>e g</p>\n");
}

} // namespace
} // namespace specloom::openapi_generator::doc_html
