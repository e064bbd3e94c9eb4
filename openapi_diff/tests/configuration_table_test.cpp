// The recommended configuration, field by field, as it was written down apart from the carried file.

#include "openapi_diff/configuration.h"

#include <algorithm>   // std::max
#include <cstddef>     // std::size_t
#include <cstdint>     // std::uint32_t
#include <sstream>     // std::istringstream
#include <string>      // std::string, std::getline
#include <string_view> // std::string_view

#include <gtest/gtest.h>

namespace specloom::openapi_diff {
namespace {

// Number, field, what the actions speak of (the field or its items), levels of addition, removal and
// modification: Breaking, Non-breaking, (non-)Functional, - for none, * for nested. Two letters are those of
// a flag that becomes true or false.
constexpr std::string_view classificationTable = R"(
0 openapi.openapi field B B B
1 openapi.info field * * *
2 openapi.jsonSchemaDialect field - - -
3 openapi.servers items N B *
4 openapi.paths field * * *
5 openapi.webhooks items N B *
6 openapi.components field * * *
7 openapi.security items B B *
8 openapi.tags items N B *
9 openapi.externalDocs field N N *
10 info.title field B B B
11 info.summary field F F F
12 info.description field F F F
13 info.termsOfService field B B B
14 info.contact field * * *
15 info.license field B N *
16 info.version field - - -
17 contact.name field N B N
18 contact.url field N B N
19 contact.email field N B N
20 license.name field B B B
21 license.identifier field B B B
22 license.url field B B B
23 server.url field B B B
24 server.description field F F F
25 server.variables items B B *
26 serverVariable.description field F F F
27 serverVariable.default field B B B
28 serverVariable.enum items N B -
29 components.schemas items N B *
30 components.responses items N B *
31 components.parameters items N B *
32 components.examples items F F F
33 components.requestBodies items N B *
34 components.headers items N B *
35 components.securitySchemes items N B *
36 components.links items N B *
37 components.callbacks items N B *
38 components.pathItems items N B *
39 paths items N B *
40 pathItem.summary field F F F
41 pathItem.description field F F F
42 pathItem.parameters items N B *
43 pathItem.operations items N B *
44 pathItem.servers items N B *
45 operation.tags items N N N
46 operation.summary field F F F
47 operation.operationId field B B B
48 operation.description field F F F
49 operation.externalDocs field F F F
50 operation.deprecated field - - BN
51 operation.parameters items N B *
52 operation.requestBody field * * *
53 operation.responses field * * *
54 operation.callbacks items B B *
55 operation.security items B B *
56 operation.servers items N B *
57 externalDocumentation.description field F F F
58 externalDocumentation.url field F F F
59 parameter.name field B B B
60 parameter.in field B B B
61 parameter.description field F F F
62 parameter.required field - - BN
63 parameter.deprecated field B B B
64 parameter.allowEmptyValue field - - NB
65 parameter.style field B B B
66 parameter.explode field B B B
67 parameter.allowReserved field - - NB
68 parameter.schema field B B *
69 parameter.content items B B *
70 parameter.example field F F F
71 parameter.examples items F F F
72 requestBody.description field F F F
73 requestBody.required field BN B BN
74 requestBody.content items N B *
75 mediaType.schema field B B *
76 mediaType.encoding items B B *
77 mediaType.example field F F F
78 mediaType.examples items F F F
79 encoding.contentType field B B B
80 encoding.headers items N B *
81 encoding.style field B B B
82 encoding.explode field B B B
83 encoding.allowReserved field B B B
84 responses items B B *
85 response.description field F F F
86 response.headers items B B *
87 response.content items B B *
88 response.links items N B *
89 callback items B B *
90 example.summary field F F F
91 example.description field F F F
92 example.value field F F F
93 example.externalValue field F F F
94 link.description field F F F
95 link.server field N N N
96 link.operationRef field N N N
97 link.operationId field N N N
98 link.parameters items N N N
99 link.requestBody field N N N
100 header.name field B B B
101 header.description field F F F
102 header.required field - - BN
103 header.deprecated field B B B
104 header.allowEmptyValue field B B B
105 header.explode field B B B
106 header.allowReserved field B B B
107 header.schema field B B *
108 header.content items B B *
109 header.example field F F F
110 header.examples items F F F
111 tag.name field B B B
112 tag.description field F F F
113 tag.externalDocs field F F F
114 reference.$ref field B B B
115 reference.summary field N N N
116 reference.description field F F F
117 schema.id field B B B
118 schema.title field N N N
119 schema.description field F F F
120 schema.type field B B B
121 schema.format field B B B
122 schema.const field B B B
123 schema.enum items B B -
124 schema.deprecated field - - BN
125 schema.readOnly field F F F
126 schema.writeOnly field F F F
127 schema.minimum field B B B
128 schema.exclusiveMinimum field B B B
129 schema.maximum field B B B
130 schema.exclusiveMaximum field B B B
131 schema.multipleOf field B B B
132 schema.minLength field B B B
133 schema.maxLength field B B B
134 schema.pattern field B B B
135 schema.items field B N *
136 schema.contains field B B *
137 schema.minContains field B B B
138 schema.maxContains field B B B
139 schema.prefixItems items B B B
140 schema.minItems field B B B
141 schema.maxItems field B B B
142 schema.uniqueItems field B B B
143 schema.unevaluatedItems field B B *
144 schema.required items B B B
145 schema.properties items N N *
146 schema.patternProperties items N N *
147 schema.propertyNames field N N N
148 schema.additionalProperties field B B B
149 schema.minProperties field B B B
150 schema.maxProperties field B B B
151 schema.unevaluatedProperties field B B *
152 schema.allOf items B B *
153 schema.oneOf items B B *
154 schema.anyOf items B B *
155 schema.not field B B *
156 schema.if field B B *
157 schema.then field B B *
158 schema.else field B B *
159 schema.anchor field - - -
160 schema.dynamicAnchor field - - -
161 schema.dynamicRef field - - -
162 schema.vocabulary field B B B
163 schema.contentEncoding field B B B
164 schema.contentMediaType field B B B
165 schema.contentSchema field * * *
166 schema.discriminator field B N *
167 schema.xml field * * *
168 schema.externalDocs field F F F
169 schema.examples field F F F
170 schema.default field B B B
171 schema.dialect field B B B
172 discriminator.propertyName field B B B
173 discriminator.mapping items B B B
174 xml.name field B B B
175 xml.namespace field B B B
176 xml.prefix field B B B
177 xml.attribute field B B B
178 xml.wrapped field B B B
179 securityScheme.name field B B B
180 securityScheme.description field F F F
181 securityScheme.type field B B B
182 securityScheme.in field B B B
183 securityScheme.scheme field B B B
184 securityScheme.bearerFormat field B B B
185 securityScheme.flows field B B *
186 securityScheme.openIdConnectUrl field B B B
187 oauthFlows.implicit field B B *
188 oauthFlows.password field B B *
189 oauthFlows.clientCredentials field B B *
190 oauthFlows.authorizationCode field B B *
191 oauthFlow.authorizationUrl field B B B
192 oauthFlow.tokenUrl field B B B
193 oauthFlow.refreshUrl field B B B
194 oauthFlow.scopes items B B F
195 securityRequirement items B B B
)";

ChangeLevel levelOf(char letter) {
    return static_cast<ChangeLevel>(std::string_view("-FNB*").find(letter));
}

struct Kinds {
    ChangeKind property;
    ChangeKind key;
    ChangeKind element;
    ChangeKind extension;
};
constexpr Kinds additions{ChangeKind::PropertyAdded, ChangeKind::KeyAdded, ChangeKind::ElementAdded,
                          ChangeKind::ExtensionAdded};
constexpr Kinds removals{ChangeKind::PropertyRemoved, ChangeKind::KeyRemoved, ChangeKind::ElementRemoved,
                         ChangeKind::ExtensionRemoved};
constexpr Kinds modifications{ChangeKind::PropertyModified, ChangeKind::KeyModified,
                              ChangeKind::ElementModified, ChangeKind::ExtensionModified};

void expectLevels(const NodeDiffConfig& entry, const Kinds& kinds, bool ofItems, std::string_view letters) {
    const ChangeLevel whenTrue = ofItems ? ChangeLevel::None : levelOf(letters.front());
    const ChangeLevel whenFalse = ofItems ? ChangeLevel::None : levelOf(letters.back());
    EXPECT_EQ(entry.lookup(kinds.property, true), whenTrue);
    EXPECT_EQ(entry.lookup(kinds.property, false), whenFalse);
    EXPECT_EQ(entry.lookup(kinds.property), std::max(whenTrue, whenFalse)) << "unknown: the worse";
    EXPECT_EQ(entry.lookup(kinds.extension), std::max(whenTrue, whenFalse));
    for (const ChangeKind kind : {kinds.key, kinds.element})
        EXPECT_EQ(entry.lookup(kind), ofItems ? levelOf(letters.front()) : ChangeLevel::None);
}

TEST(ConfigurationTable, everyRowIsWhatWasWrittenDown) {
    const Configuration configuration = Configuration::recommended();
    std::istringstream lines{std::string(classificationTable.substr(1))};
    std::size_t rows = 0;
    for (std::string line; std::getline(lines, line); ++rows) {
        SCOPED_TRACE(line);
        std::istringstream words(line);
        std::uint32_t number = 0;
        std::string field, subject, add, remove, modify;
        words >> number >> field >> subject >> add >> remove >> modify;
        ASSERT_TRUE(words);

        const auto key = static_cast<ConfigKey>(number);
        const ConfigField& known = configField(key);
        EXPECT_EQ(number, rows);
        EXPECT_EQ(field,
                  std::string(known.section) + (known.name.empty() ? "" : ".") + std::string(known.name));
        EXPECT_EQ(configKeyText(key), field.substr(field.find('.') + 1));
        const bool ofItems = subject == "items";
        EXPECT_EQ(known.form == EntryForm::Item, ofItems);
        expectLevels(configuration.entry(key), additions, ofItems, add);
        expectLevels(configuration.entry(key), removals, ofItems, remove);
        expectLevels(configuration.entry(key), modifications, ofItems, modify);
    }
    EXPECT_EQ(rows, configKeyCount);
}

} // namespace
} // namespace specloom::openapi_diff
