#include "openapi_diff/diffs/openapi_diff.h"

#include "jv/deser.h"
#include "openapi/reader.h"
#include "openapi_format/formatter.h"
#include "test_support/corpora.h"
#include "test_support/documents.h"
#include "test_support/read_tree.h"

#include <fmt/format.h> // fmt::format

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

/// Writes each change on a line: kind, section and field with name or index, level, an asterisk for a part of
/// another change, and the line of the node, after a minus where that is in the source.
class ChangeLines : public Report {
  public:
    void add(const Change& change) override {
        ++count;
        text += fmt::format("{} {}.{}", changeKindText(change.kind), configField(change.key).section,
                            configKeyText(change.key));
        if (!change.name.empty())
            text += fmt::format("({})", change.name);
        if (change.index != -1)
            text += fmt::format("[{}]", change.index);
        text += fmt::format(" {}{} {}{}\n", changeLevelText(change.level), change.isPart ? "*" : "",
                            change.side == DocumentSide::Source ? "-" : "", change.pos.line);
    }
    std::string text;
    std::size_t count = 0;
};

ChangeLines& compare(const openapi::ReadResult& source, const openapi::ReadResult& destination,
                     ChangeLines& report) {
    static const Configuration configuration = Configuration::recommended();
    DiffContext context(configuration, source, destination, report);
    OpenAPIDiff().diff(&source.root(), &destination.root(), context);
    return report;
}

std::unique_ptr<openapi::ReadResult> read(std::string_view text, jv::DocumentFormat format) {
    static const auto formats = std::make_shared<const openapi::SchemaFormatRegistry>();
    return openapi::read(jv::parseDocument(text, {.format = format, .refLoader = {}}), formats);
}

struct Case {
    const char* name;
    std::string source;
    std::string destination;
    std::string lines;
};

/// Of documents that begin alike, with the lines 0 to 2.
void expectChanges(const std::vector<Case>& cases) {
    const std::string head = "openapi: 3.1.0\ninfo: {title: t, version: '1'}\n\n";
    for (const Case& expected : cases) {
        SCOPED_TRACE(expected.name);
        const auto source = read(head + expected.source, jv::DocumentFormat::Yaml);
        const auto destination = read(head + expected.destination, jv::DocumentFormat::Yaml);
        ChangeLines report;
        EXPECT_EQ(compare(*source, *destination, report).text, expected.lines);
    }
}

TEST(DiffsTest, documents) {
    expectChanges({
        {"lists of the document",
         R"(servers: [{url: a, description: d}, {url: b}, {url: 'c{v}', variables: {v: {default: x, enum: [x, y]}}}]
security: [{k: []}, {o: [r, w], k: []}]
tags: [{name: a}, {name: b, externalDocs: {url: u}}]
externalDocs: {url: u}
x-a: 1
x-b: 1
)",
         R"(servers: [{url: 'c{v}', variables: {v: {default: x, enum: [z, y, x]}}}, {url: a, description: e}, {url: d}]
security: [{k: [], o: [w, r]}, {}]
tags: [{name: b, externalDocs: {url: v}}, {name: a}, {name: a}]
x-b: 2
x-c: 1
)",
         R"(element_added openapi.servers[2] non-breaking 3
property_added server.url breaking* 3
element_removed openapi.servers[1] breaking -3
property_removed server.url breaking* -3
element_modified openapi.servers[0] non-breaking 3
key_modified server.variables(v) non-breaking 3
element_added serverVariable.enum[0] non-breaking 3
element_modified openapi.servers[1] non-functional 3
property_modified server.description non-functional 3
element_added openapi.security[1] breaking 4
element_added securityRequirement.securityRequirement[1] breaking* 4
element_removed openapi.security[0] breaking -4
element_removed securityRequirement.securityRequirement[0] breaking* -4
element_added openapi.tags[2] non-breaking 5
property_added tag.name breaking* 5
element_modified openapi.tags[0] non-functional 5
property_modified tag.externalDocs non-functional 5
property_modified externalDocumentation.url non-functional 5
property_removed openapi.externalDocs non-breaking -6
property_removed externalDocumentation.url non-functional* -6
extension_added openapi.openapi(x-c) non-functional 0
extension_removed openapi.openapi(x-a) non-functional 0
extension_modified openapi.openapi(x-b) non-functional 0
)"},
        {"webhooks, one as a reference, and an empty name",
         R"(webhooks:
  old: {get: {operationId: a}}
  both: {$ref: '#/components/pathItems/P'}
  '': {summary: s}
components: {pathItems: {P: {summary: s}}}
)",
         R"(webhooks:
  new: {get: {operationId: a}}
  both: {$ref: '#/components/pathItems/P'}
  '': {summary: t}
components: {pathItems: {P: {summary: t}}}
)",
         R"(key_added openapi.webhooks(new) non-breaking 4
key_added pathItem.operations(get) non-breaking* 4
property_added operation.operationId breaking* 4
key_removed openapi.webhooks(old) breaking -4
key_removed pathItem.operations(get) breaking* -4
property_removed operation.operationId breaking* -4
key_modified openapi.webhooks non-functional 6
property_modified pathItem.summary non-functional 6
key_modified openapi.webhooks(both) non-functional 5
property_modified openapi.components non-functional 7
key_modified components.pathItems(P) non-functional 7
property_modified pathItem.summary non-functional 7
)"},
        {"paths and operations",
         R"(paths:
  /a:
    summary: s
    get: {operationId: a, tags: [x, y, z], deprecated: false, responses: {'200': {description: d}}}
    put: {operationId: p}
  /b: {}
  /c: {get: {}}
)",
         R"(paths:
  /a:
    description: d
    get: {operationId: b, tags: [z, x, w], deprecated: true, responses: {'200': {description: e}, default: {description: d}}}
    post: {operationId: p, x-p: 1}
  /b: {x-new: 1}
  /d: {get: {}}
)",
         R"(property_modified openapi.paths breaking 4
key_modified paths.paths(/a) breaking 5
property_removed pathItem.summary non-functional -5
property_added pathItem.description non-functional 5
key_added pathItem.operations(post) non-breaking 7
property_added operation.operationId breaking* 7
extension_added pathItem.operations(x-p) non-functional* 7
key_removed pathItem.operations(put) breaking -7
property_removed operation.operationId breaking* -7
key_modified pathItem.operations(get) breaking 6
element_added operation.tags[2] non-breaking 6
element_removed operation.tags[1] non-breaking -6
property_modified operation.operationId breaking 6
property_modified operation.deprecated breaking 6
property_modified operation.responses breaking 6
key_added responses.responses(default) breaking 6
property_added response.description non-functional* 6
key_modified responses.responses(200) non-functional 6
property_modified response.description non-functional 6
key_modified paths.paths(/b) non-functional 8
extension_added paths.paths(x-new) non-functional 8
)"},
        {"security of an operation",
         R"(security: [{k: []}]
paths:
  /a:
    get: {responses: {}}
    put: {security: [{k: []}]}
    post: {security: []}
)",
         R"(security: [{k: []}]
paths:
  /a:
    get: {security: []}
    put: {}
    post: {security: [{}]}
)",
         R"(property_modified openapi.paths breaking 5
key_modified paths.paths(/a) breaking 6
key_modified pathItem.operations(get) breaking 6
element_removed operation.security[0] breaking -3
element_removed securityRequirement.securityRequirement[0] breaking* -3
key_modified pathItem.operations(put) breaking 7
element_removed operation.security[0] breaking -7
element_removed securityRequirement.securityRequirement[0] breaking* -7
key_modified pathItem.operations(post) breaking 8
element_added operation.security[0] breaking 8
element_added securityRequirement.securityRequirement[0] breaking* 8
)"},
        {"parameters",
         R"(paths:
  /a:
    parameters: [{name: p, in: query, schema: {type: string}}, {name: p, in: header}]
    get:
      parameters:
        - {name: a, in: query, schema: {type: string}}
        - {name: b, in: query, required: true, style: form, explode: true, allowEmptyValue: true}
        - {$ref: '#/components/parameters/c'}
components: {parameters: {c: {name: c, in: cookie, example: 1}}}
)",
         R"(paths:
  /a:
    parameters: [{name: p, in: header}, {name: p, in: query, content: {a/b: {schema: {type: string}}}}]
    get:
      parameters:
        - {name: c, in: cookie, example: 2}
        - {name: b, in: query, style: spaceDelimited, explode: false, allowReserved: true, deprecated: true}
        - {name: a, in: header, required: true, schema: {type: string}}
components: {parameters: {c: {name: c, in: cookie, example: 1}}}
)",
         R"(property_modified openapi.paths breaking 4
key_modified paths.paths(/a) breaking 5
element_modified pathItem.parameters[1] breaking 5
property_removed parameter.schema breaking -5
property_removed schema.type breaking* -5
key_added parameter.content(a/b) breaking 5
property_added mediaType.schema breaking* 5
property_added schema.type breaking* 5
key_modified pathItem.operations(get) breaking 7
element_added operation.parameters[2] non-breaking 10
property_added parameter.name breaking* 10
property_added parameter.in breaking* 10
property_added parameter.required none* 10
property_added parameter.schema breaking* 10
property_added schema.type breaking* 10
element_removed operation.parameters[0] breaking -8
property_removed parameter.name breaking* -8
property_removed parameter.in breaking* -8
property_removed parameter.schema breaking* -8
property_removed schema.type breaking* -8
element_modified operation.parameters[0] breaking 8
property_removed reference.$ref breaking -10
property_modified parameter.example non-functional 8
element_modified operation.parameters[1] breaking 9
property_modified parameter.required non-breaking 9
property_added parameter.deprecated breaking 9
property_modified parameter.allowEmptyValue breaking 9
property_modified parameter.style breaking 9
property_modified parameter.explode breaking 9
property_modified parameter.allowReserved non-breaking 9
)"},
        {"bodies, responses, headers, links, callbacks, examples",
         R"(paths:
  /a:
    post:
      requestBody: {content: {a/a: {example: 1}, a/b: {schema: {type: string}, encoding: {e: {style: form, headers: {H: {schema: {type: string}}}}}}}}
      responses:
        '200':
          headers: {H: {required: true, schema: {type: string}}, I: {content: {a/b: {}}}}
          links: {L: {operationId: a, server: {url: u}, parameters: {p: 1, q: 1}}}
          description: d
          content: {a/b: {examples: {x: {value: 1, summary: s}, y: {value: 1}}}}
      callbacks: {C: {e: {get: {operationId: i}}}}
)",
         R"(paths:
  /a:
    post:
      requestBody: {required: true, content: {a/c: {example: 1}, a/b: {schema: {type: string}, encoding: {e: {style: pipeDelimited, headers: {H: {schema: {type: number}}}}}}}}
      responses:
        '200':
          headers: {H: {required: false, schema: {type: string}}, I: {content: {a/c: {example: 1}}}}
          links: {L: {operationRef: r, server: {url: v}, parameters: {p: 2, r: 1}, requestBody: 1}}
          description: d
          content: {a/b: {examples: {x: {value: 2, summary: s}, z: {value: 1}}}}
      callbacks: {C: {e: {get: {operationId: j}}, f: {summary: s}}}
)",
         R"(property_modified openapi.paths breaking 4
key_modified paths.paths(/a) breaking 5
key_modified pathItem.operations(post) breaking 6
property_modified operation.requestBody breaking 6
property_added requestBody.required breaking 6
key_added requestBody.content(a/c) non-breaking 6
property_added mediaType.example non-functional* 6
key_removed requestBody.content(a/a) breaking -6
property_removed mediaType.example non-functional* -6
key_modified requestBody.content(a/b) breaking 6
key_modified mediaType.encoding(e) breaking 6
key_modified encoding.headers(H) breaking 6
property_modified header.schema breaking 6
property_modified schema.type breaking 6
property_modified encoding.style breaking 6
property_modified operation.responses breaking 8
key_modified responses.responses(200) breaking 9
key_modified response.headers(H) non-breaking 9
property_modified header.required non-breaking 9
key_modified response.headers(I) breaking 9
key_added header.content(a/c) breaking 9
property_added mediaType.example non-functional* 9
key_modified response.content(a/b) non-functional 12
key_added mediaType.examples(z) non-functional 12
property_added example.value non-functional* 12
key_removed mediaType.examples(y) non-functional -12
property_removed example.value non-functional* -12
key_modified mediaType.examples(x) non-functional 12
property_modified example.value non-functional 12
key_modified response.links(L) breaking 10
property_modified link.server non-breaking 10
property_modified server.url breaking 10
property_added link.operationRef non-breaking 10
property_removed link.operationId non-breaking -10
key_added link.parameters(r) non-breaking 10
key_removed link.parameters(q) non-breaking -10
key_modified link.parameters(p) non-breaking 10
property_added link.requestBody non-breaking 10
key_modified operation.callbacks(C) breaking 13
key_added callback.callback(f) breaking 13
property_added pathItem.summary non-functional* 13
key_modified callback.callback(e) breaking 13
key_modified pathItem.operations(get) breaking 13
property_modified operation.operationId breaking 13
)"},
        {"security schemes",
         R"(components:
  securitySchemes:
    a: {type: apiKey, name: n, in: query}
    b: {type: http, scheme: bearer, bearerFormat: f}
    o: {type: oauth2, flows: {implicit: {authorizationUrl: u, scopes: {r: d, w: d}}, password: {tokenUrl: u, scopes: {}}}}
)",
         R"(components:
  securitySchemes:
    a: {type: apiKey, name: n, in: cookie}
    b: {type: openIdConnect, openIdConnectUrl: u}
    o: {type: oauth2, flows: {implicit: {authorizationUrl: v, scopes: {r: e, x: d}}, clientCredentials: {tokenUrl: u, scopes: {}}}}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.securitySchemes(a) breaking 5
property_modified securityScheme.in breaking 5
key_modified components.securitySchemes(b) breaking 6
property_modified securityScheme.type breaking 6
property_removed securityScheme.scheme breaking -6
property_removed securityScheme.bearerFormat breaking -6
property_added securityScheme.openIdConnectUrl breaking 6
key_modified components.securitySchemes(o) breaking 7
property_modified securityScheme.flows breaking 7
property_modified oauthFlows.implicit breaking 7
property_modified oauthFlow.authorizationUrl breaking 7
key_added oauthFlow.scopes(x) breaking 7
key_removed oauthFlow.scopes(w) breaking -7
key_modified oauthFlow.scopes(r) non-functional 7
property_removed oauthFlows.password breaking -7
property_removed oauthFlow.tokenUrl breaking* -7
property_added oauthFlows.clientCredentials breaking 7
property_added oauthFlow.tokenUrl breaking* 7
)"},
    });
}

TEST(DiffsTest, schemas) {
    expectChanges({
        {"values",
         R"(components:
  schemas:
    A: {title: t, type: string, format: date, enum: [1, 2, {a: 1, b: 2}], minLength: 1, maximum: 1.50, examples: [1, 2], default: {a: [1]}, deprecated: true, x-a: 1}
    B: {const: 1, required: [a, b], exclusiveMinimum: 1, readOnly: true, discriminator: {propertyName: p, mapping: {a: A, b: B}}, xml: {name: n}}
    C: {enum: [1]}
    D: {const: 1}
    E: {type: [string, 'null']}
    '': {type: string}
)",
         R"(components:
  schemas:
    A: {title: u, type: string, format: time, enum: [{b: 2, a: 1.0}, 3, 2, 2], minLength: 1, maximum: 1.5, examples: [2, 1], default: {a: [1.0]}, x-a: 1}
    B: {const: 2, required: [c, b], exclusiveMinimum: 2, readOnly: false, discriminator: {propertyName: q, mapping: {a: C, c: B}}, xml: {name: m, wrapped: true}}
    C: {const: 1}
    D: {enum: [1]}
    E: {type: ['null', string]}
    '': {type: number}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.schemas breaking 10
property_modified schema.type breaking 10
key_modified components.schemas(A) breaking 5
property_modified schema.title non-breaking 5
property_modified schema.format breaking 5
element_added schema.enum[1] breaking 5
element_removed schema.enum[0] breaking -5
property_modified schema.deprecated non-breaking 5
property_modified schema.examples non-functional 5
key_modified components.schemas(B) breaking 6
property_modified schema.const breaking 6
property_modified schema.readOnly non-functional 6
property_modified schema.exclusiveMinimum breaking 6
key_added schema.required(c) breaking 6
key_removed schema.required(a) breaking -6
property_modified schema.discriminator breaking 6
property_modified discriminator.propertyName breaking 6
key_added discriminator.mapping(c) breaking 6
key_removed discriminator.mapping(b) breaking -6
key_modified discriminator.mapping(a) breaking 6
property_modified schema.xml breaking 6
property_modified xml.name breaking 6
property_added xml.wrapped breaking 6
key_modified components.schemas(C) breaking 7
property_added schema.const breaking 7
element_removed schema.enum[0] breaking -7
key_modified components.schemas(D) breaking 8
property_removed schema.const breaking -8
element_added schema.enum[0] breaking 8
)"},
        {"schemas in schemas",
         R"(components:
  schemas:
    A: {properties: {p: {type: string}, q: {type: string}, '': {type: string}}, items: {minimum: 1}, additionalProperties: true, not: {}, patternProperties: {x: {type: string}}}
    B: {additionalProperties: {type: string}, if: {type: string}}
)",
         R"(components:
  schemas:
    A: {properties: {r: {type: string}, q: {type: number}, '': {type: number}}, items: {minimum: 2}, additionalProperties: false, not: {type: string}, patternProperties: {y: {}}}
    B: {then: {type: string}, unevaluatedItems: false}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.schemas(A) breaking 5
property_modified schema.items breaking 5
property_modified schema.minimum breaking 5
key_added schema.properties(r) non-breaking 5
property_added schema.type breaking* 5
key_removed schema.properties(p) non-breaking -5
property_removed schema.type breaking* -5
key_modified schema.properties breaking 5
property_modified schema.type breaking 5
key_modified schema.properties(q) breaking 5
property_modified schema.type breaking 5
key_removed schema.patternProperties(x) non-breaking -5
property_removed schema.type breaking* -5
property_modified schema.additionalProperties breaking 5
property_added schema.not breaking 5
property_modified schema.not breaking 5
property_added schema.type breaking 5
key_modified components.schemas(B) breaking 6
property_added schema.unevaluatedItems breaking 6
property_added schema.not breaking* 6
property_removed schema.additionalProperties breaking -6
property_removed schema.type breaking* -6
property_removed schema.if breaking -6
property_removed schema.type breaking* -6
property_added schema.then breaking 6
property_added schema.type breaking* 6
)"},
        {"composed schemas pair by reference, title, value and place",
         R"(components:
  schemas:
    R: {type: string}
    S: {type: number}
    A: {oneOf: [{$ref: '#/components/schemas/R'}, {title: t, minimum: 1}, {maximum: 1}, {type: string}, {minLength: 1}]}
    B: {allOf: [{type: string}, {$ref: '#/components/schemas/R'}, {type: string}]}
    C: {anyOf: [{type: string}], prefixItems: [{type: string}, {type: number}]}
)",
         R"(components:
  schemas:
    R: {type: string}
    S: {type: number}
    A: {oneOf: [{maximum: 1}, {type: number}, {title: t, minimum: 2}, {$ref: '#/components/schemas/S'}, {$ref: '#/components/schemas/R'}, {maxLength: 1}]}
    B: {allOf: [{$ref: '#/components/schemas/R'}, {type: string}, {$ref: '#/components/schemas/R'}]}
    C: {anyOf: [{type: number}], prefixItems: [{type: number}, {type: string}]}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.schemas(A) breaking 7
element_added schema.oneOf[5] breaking 7
property_added schema.maxLength breaking* 7
element_modified schema.oneOf[1] breaking 7
property_modified schema.type breaking 7
element_modified schema.oneOf[2] breaking 7
property_modified schema.minimum breaking 7
element_modified schema.oneOf[3] breaking 7
property_added reference.$ref breaking 7
property_added schema.type breaking 6
property_removed schema.minLength breaking -7
key_modified components.schemas(B) breaking 8
element_modified schema.allOf[2] breaking 8
property_added reference.$ref breaking 8
key_modified components.schemas(C) breaking 9
element_modified schema.anyOf[0] breaking 9
property_modified schema.type breaking 9
)"},
    });
}

TEST(DiffsTest, references) {
    expectChanges({
        {"of one name",
         R"(components:
  schemas:
    A: {properties: {b: {$ref: '#/components/schemas/B'}}}
    B: {properties: {c: {$ref: '#/components/schemas/C'}}}
    C: {type: string}
  responses: {R: {description: d, content: {a/b: {schema: {$ref: '#/components/schemas/A'}}}}}
paths: {/p: {get: {responses: {'200': {$ref: '#/components/responses/R'}}}}}
)",
         R"(components:
  schemas:
    A: {properties: {b: {$ref: '#/components/schemas/B'}}}
    B: {properties: {c: {$ref: '#/components/schemas/C'}}}
    C: {type: number}
  responses: {R: {description: d, content: {a/b: {schema: {$ref: '#/components/schemas/A'}}}}}
paths: {/p: {get: {responses: {'200': {$ref: '#/components/responses/R'}}}}}
)",
         R"(property_modified openapi.paths breaking 9
key_modified paths.paths(/p) breaking 9
key_modified pathItem.operations(get) breaking 9
property_modified operation.responses breaking 9
key_modified responses.responses(200) breaking 9
property_modified openapi.components breaking 4
key_modified components.schemas(A) breaking 5
key_modified schema.properties(b) breaking 5
key_modified components.schemas(B) breaking 6
key_modified schema.properties(c) breaking 6
key_modified components.schemas(C) breaking 7
property_modified schema.type breaking 7
key_modified components.responses(R) breaking 8
key_modified response.content(a/b) breaking 8
property_modified mediaType.schema breaking 8
)"},
        {"in a circle",
         R"(components:
  schemas:
    A: {items: {$ref: '#/components/schemas/B'}}
    B: {items: {$ref: '#/components/schemas/C'}}
    C: {items: {$ref: '#/components/schemas/A'}, title: t}
    D: {items: {$ref: '#/components/schemas/D'}}
)",
         R"(components:
  schemas:
    A: {items: {$ref: '#/components/schemas/B'}}
    B: {items: {$ref: '#/components/schemas/C'}}
    C: {items: {$ref: '#/components/schemas/A'}, title: u}
    D: {items: {$ref: '#/components/schemas/D'}}
)",
         R"(property_modified openapi.components non-breaking 4
key_modified components.schemas(A) non-breaking 5
property_modified schema.items non-breaking 5
key_modified components.schemas(B) non-breaking 6
property_modified schema.items non-breaking 6
key_modified components.schemas(C) non-breaking 7
property_modified schema.title non-breaking 7
property_modified schema.items non-breaking 7
)"},
        {"to different names",
         R"(components:
  schemas:
    A: {title: t, minimum: 1}
    B: {title: t, minimum: 2}
    U: {properties: {p: {$ref: '#/components/schemas/A'}, q: {$ref: '#/components/schemas/A'}}}
)",
         R"(components:
  schemas:
    A: {title: t, minimum: 1}
    B: {title: t, minimum: 2}
    U: {properties: {p: {$ref: '#/components/schemas/B'}, q: {$ref: '#/components/schemas/B'}}}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.schemas(U) breaking 7
key_modified schema.properties(p) breaking 7
property_modified reference.$ref breaking 7
property_modified schema.minimum breaking 6
key_modified schema.properties(q) breaking 7
property_modified reference.$ref breaking 7
)"},
        {"a circle of components with new names",
         R"(components:
  schemas:
    A: {items: {$ref: '#/components/schemas/B'}, title: t}
    B: {items: {$ref: '#/components/schemas/A'}, title: t}
paths: {/p: {summary: '', parameters: [{name: p, in: query, schema: {$ref: '#/components/schemas/A'}}, {name: q, in: query, schema: {$ref: '#/components/schemas/B'}}]}}
)",
         R"(components:
  schemas:
    C: {items: {$ref: '#/components/schemas/D'}, title: t}
    D: {items: {$ref: '#/components/schemas/C'}, title: u}
paths: {/p: {summary: '', parameters: [{name: p, in: query, schema: {$ref: '#/components/schemas/C'}}, {name: q, in: query, schema: {$ref: '#/components/schemas/D'}}]}}
)",
         R"(property_modified openapi.paths breaking 7
key_modified paths.paths(/p) breaking 7
element_modified pathItem.parameters[0] breaking 7
property_modified parameter.schema breaking 7
property_modified reference.$ref breaking 7
property_modified schema.items breaking 5
property_modified reference.$ref breaking 5
property_modified schema.title non-breaking 6
property_modified schema.items breaking 6
property_modified reference.$ref breaking 6
element_modified pathItem.parameters[1] breaking 7
property_modified parameter.schema breaking 7
property_modified reference.$ref breaking 7
property_modified openapi.components breaking 4
key_added components.schemas(C) non-breaking 5
property_added schema.title non-breaking* 5
property_added schema.items breaking* 5
property_added reference.$ref breaking* 5
key_added components.schemas(D) non-breaking 6
property_added schema.title non-breaking* 6
property_added schema.items breaking* 6
property_added reference.$ref breaking* 6
key_removed components.schemas(A) breaking -5
property_removed schema.title non-breaking* -5
property_removed schema.items non-breaking* -5
property_removed reference.$ref breaking* -5
key_removed components.schemas(B) breaking -6
property_removed schema.title non-breaking* -6
property_removed schema.items non-breaking* -6
property_removed reference.$ref breaking* -6
)"},
        {"against objects, which nest where the components refer",
         R"(components:
  schemas:
    A: {properties: {p: {properties: {q: {$ref: '#/components/schemas/A'}}}}}
    U: {properties: {p: {properties: {q: {properties: {p: {properties: {q: {title: t}}}}}}}}}
)",
         R"(components:
  schemas:
    A: {properties: {p: {properties: {q: {properties: {p: {properties: {q: {title: t}}}}}}}}}
    U: {properties: {p: {properties: {q: {$ref: '#/components/schemas/A'}}}}}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.schemas(A) breaking 5
key_modified schema.properties(p) breaking 5
key_modified schema.properties(q) breaking 5
property_removed reference.$ref breaking -5
key_modified schema.properties(p) breaking 5
key_modified schema.properties(q) breaking 5
property_removed reference.$ref breaking -5
property_added schema.title non-breaking 5
key_removed schema.properties(p) non-breaking -5
key_removed schema.properties(q) non-breaking* -5
property_removed reference.$ref breaking* -5
key_modified components.schemas(U) breaking 6
key_modified schema.properties(p) breaking 6
key_modified schema.properties(q) breaking 6
property_added reference.$ref breaking 6
key_modified schema.properties(p) non-breaking 5
key_modified schema.properties(q) non-breaking 5
property_removed schema.title non-breaking -6
key_added schema.properties(p) non-breaking 5
key_added schema.properties(q) non-breaking* 5
property_added schema.title non-breaking* 5
)"},
        {"components that are references",
         R"(components:
  schemas:
    A: {$ref: '#/components/schemas/B'}
    B: {title: t}
    C: {title: u}
    D: {title: u}
    U: {items: {$ref: '#/components/schemas/A'}, not: {$ref: '#/components/schemas/D'}}
)",
         R"(components:
  schemas:
    A: {$ref: '#/components/schemas/C'}
    B: {title: t}
    C: {title: u}
    D: {$ref: '#/components/schemas/C'}
    U: {items: {$ref: '#/components/schemas/A'}, not: {$ref: '#/components/schemas/D'}}
)",
         R"(property_modified openapi.components breaking 4
key_modified components.schemas(A) breaking 5
property_modified reference.$ref breaking 5
property_modified schema.title non-breaking 7
key_modified components.schemas(D) breaking 8
property_added reference.$ref breaking 8
key_modified components.schemas(U) breaking 9
property_modified schema.items breaking 9
property_modified schema.not breaking 9
)"},
        {"with a text beside a reference to a schema",
         R"(components:
  schemas: {A: {title: t}, U: {items: {$ref: '#/components/schemas/A', description: d}}}
)",
         R"(components:
  schemas: {A: {title: t}, U: {items: {$ref: '#/components/schemas/A', description: e}}}
)",
         R"(property_modified openapi.components non-functional 4
key_modified components.schemas(U) non-functional 4
property_modified schema.items non-functional 4
property_modified reference.description non-functional 4
)"},
        {"on one side only, and with texts of their own",
         R"(components:
  responses: {R: {description: d}}
paths:
  /p: {get: {responses: {'200': {$ref: '#/components/responses/R'}, '201': {$ref: '#/components/responses/R', description: d}}}}
)",
         R"(components:
  responses: {R: {description: d}}
paths:
  /p: {get: {responses: {'201': {$ref: '#/components/responses/R', description: e, summary: s}, '202': {$ref: '#/components/responses/R'}}}}
)",
         R"(property_modified openapi.paths breaking 6
key_modified paths.paths(/p) breaking 6
key_modified pathItem.operations(get) breaking 6
property_modified operation.responses breaking 6
key_added responses.responses(202) breaking 6
property_added reference.$ref breaking* 6
key_removed responses.responses(200) breaking -6
property_removed reference.$ref breaking* -6
key_modified responses.responses(201) non-breaking 6
property_added reference.summary non-breaking 6
property_modified reference.description non-functional 6
)"},
    });
}

/// A document whose component `A<i>` refers to the next one, and the last to the first if it is a circle.
std::string chain(std::string_view name, int length, bool isCircle, std::string_view title) {
    std::string text =
        R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "components": {"schemas": {)";
    const auto refer = [&](int to) {
        return fmt::format(R"("items": {{"$ref": "#/components/schemas/{}{:05}"}})", name, to);
    };
    for (int i = 0; i < length; ++i) {
        const std::string title_ = fmt::format(R"("title": "{}")", i == length / 2 ? title : "t");
        const std::string next = i + 1 < length ? ", " + refer(i + 1) : isCircle ? ", " + refer(0) : "";
        text += fmt::format(R"({}"{}{:05}": {{{}{}}})", i == 0 ? "" : ",", name, i, title_, next);
    }
    return text + R"(}}, "paths": {"/p": {"parameters": [{"name": "p", "in": "query", "schema": {)" +
           fmt::format(R"("$ref": "#/components/schemas/{}00000")", name) + "}}]}}}";
}

/// The work grows with the number of components, whatever their names and wherever the references begin.
TEST(DiffsTest, longChainsOfReferences) {
    constexpr int length = 50'000;
    for (const bool isCircle : {false, true}) {
        SCOPED_TRACE(isCircle);
        const auto source = read(chain("A", length, isCircle, "t"), jv::DocumentFormat::Json);
        const auto same = read(chain("A", length, isCircle, "u"), jv::DocumentFormat::Json);
        const auto renamed = read(chain("B", length, isCircle, "u"), jv::DocumentFormat::Json);
        // The title, each component that leads to it with its reference, `components`, and the four of the
        // use.
        const std::size_t affected = isCircle ? length : length / 2 + 1;
        const std::size_t references = isCircle ? length : length / 2;
        ChangeLines report;
        EXPECT_EQ(compare(*source, *same, report).count, affected + references + 1 + 1 + 4);
        ChangeLines renamedReport;
        EXPECT_GT(compare(*source, *renamed, renamedReport).count, 5U * length);
        EXPECT_TRUE(renamedReport.text.starts_with("property_modified openapi.paths breaking 1\n"));
    }
}

/// Two circles whose lengths have no common divisor would bring each component together with each.
TEST(DiffsTest, circlesThatNeverAgree) {
    ChangeLines report;
    compare(*read(chain("A", 20'000, true, "t"), jv::DocumentFormat::Json),
            *read(chain("B", 19'999, true, "u"), jv::DocumentFormat::Json), report);
    EXPECT_GT(report.count, 200'000U);
    EXPECT_LT(report.count, 2'000'000U);
}

TEST(DiffsTest, manyChangesAndLongLists) {
    const auto document = [](int shift) {
        std::string text =
            R"({"openapi": "3.1.0", "info": {"title": "t", "version": "1"}, "paths": {}, "components": {"schemas": {"A": {"properties": {)";
        for (int i = 0; i < 50'000; ++i)
            text += fmt::format(R"({}"p{}": {{"minimum": {}}})", i == 0 ? "" : ",", i, i + shift);
        text += R"(}}, "B": {"oneOf": [)";
        for (int i = 0; i < 10'000; ++i)
            text += fmt::format(R"({}{{"maximum": {}}})", i == 0 ? "" : ",", (i + shift) % 10'000);
        return text + "]}}}}";
    };
    ChangeLines report;
    EXPECT_EQ(compare(*read(document(0), jv::DocumentFormat::Json),
                      *read(document(1), jv::DocumentFormat::Json), report)
                  .count,
              100'000U + 2)
        << "two for each property, none for the moved schemas";
}

/// A document does not differ from itself in either format, in its own order of keys or in the canonical one.
/// Only the extension that it gets there does, which keeps the comparison from ending before it began.
TEST(DiffsTest, realDocumentsDoNotDifferFromThemselves) {
    SPECLOOM_NEEDS_CORPORA();
    const openapi_format::Formatter formatter(openapi_format::Configuration::recommended());
    std::size_t compared = 0;
    for (const char* folder : {"openapi", "pairs"}) {
        for (const auto& path : test_support::filesBelow(test_support::corporaFolder() / folder, "")) {
            const test_support::ReadTree tree = test_support::readTree(path);
            if (tree.result == nullptr)
                continue; // the tests of the reader tell which and why
            SCOPED_TRACE(path.string());
            const jv::JVDocument& source = tree.result->source();
            const auto format = jv::formatFromPath(path.string()).value();
            for (const auto other : {jv::DocumentFormat::Json, jv::DocumentFormat::Yaml}) {
                if (other == jv::DocumentFormat::Json && test_support::hasBigNumber(*source.root()))
                    continue; // which JSON cannot be written with
                const bool isProbed = other != format;
                const std::string text =
                    isProbed ? jv::documentToText(source, other)
                             : formatter.text(*jv::loadDocument(path.string()).document, other);
                auto document = jv::parseDocument(text, {.format = other, .refLoader = {}});
                if (isProbed)
                    document->root()->setBoolean("x-probe", true);
                const auto copy = openapi::read(std::move(document), tree.formats);
                ChangeLines report;
                EXPECT_EQ(compare(*tree.result, *copy, report).text,
                          isProbed ? fmt::format("extension_added openapi.openapi(x-probe) "
                                                 "non-functional {}\n",
                                                 other == jv::DocumentFormat::Json ? 1 : 0)
                                   : "");
            }
            ++compared;
        }
    }
    EXPECT_GT(compared, 30U);
}

} // namespace
} // namespace specloom::openapi_diff
