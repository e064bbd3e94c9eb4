#include "mutations/grammar.h"

#include <map>     // std::map
#include <sstream> // std::istringstream

namespace specloom::openapi_diff::mutations {
namespace {

// A section, and in the lines behind it its fields: member, shape, section of what stands there. A field of
// another name in the configuration stands behind a colon.
constexpr std::string_view grammar = R"(
openapi
  openapi text
  info always info
  jsonSchemaDialect text
  servers named server/url
  paths always paths
  webhooks map pathItem
  components always components
  security requirements securityRequirement
  tags named tag/name
  externalDocs object externalDocumentation
info
  title text
  summary text
  description text
  termsOfService text
  contact object contact
  license object license
  version text
contact
  name text
  url text
  email text
license
  name text
  identifier text
  url text
server
  url text
  description text
  variables variables serverVariable
serverVariable
  description text
  default text
  enum set
components
  schemas map schema
  responses map response
  parameters map parameter
  examples map example
  requestBodies map requestBody
  headers map header
  securitySchemes map securityScheme
  links map link
  callbacks map callback
  pathItems map pathItem
pathItem
  summary text
  description text
  parameters parameters parameter
  operations operations operation
  servers named server/url
operation
  tags set
  summary text
  operationId text
  description text
  externalDocs object externalDocumentation
  deprecated flag
  parameters parameters parameter
  requestBody object requestBody
  responses always responses
  callbacks map callback
  security requirements securityRequirement
  servers named server/url
externalDocumentation
  description text
  url text
parameter
  name text
  in text
  description text
  required flag
  deprecated value
  allowEmptyValue flag
  style text
  explode value
  allowReserved flag
  schema object schema
  content map mediaType
  example value
  examples map example
requestBody
  description text
  required value
  content map mediaType
mediaType
  schema object schema
  encoding map encoding
  example value
  examples map example
encoding
  contentType text
  headers map header
  style text
  explode value
  allowReserved value
response
  description text
  headers map header
  content map mediaType
  links map link
example
  summary text
  description text
  value value
  externalValue text
link
  description text
  server object server
  operationRef text
  operationId text
  parameters texts
  requestBody value
header
  description text
  required flag
  deprecated value
  allowEmptyValue value
  explode value
  allowReserved value
  schema object schema
  content map mediaType
  example value
  examples map example
tag
  name text
  description text
  externalDocs object externalDocumentation
schema
  $id:id text
  title text
  description text
  type types
  format text
  const value
  enum set
  deprecated flag
  readOnly value
  writeOnly value
  minimum value
  exclusiveMinimum value
  maximum value
  exclusiveMaximum value
  multipleOf value
  minLength value
  maxLength value
  pattern text
  items object schema
  contains object schema
  minContains value
  maxContains value
  prefixItems schemas schema
  minItems value
  maxItems value
  uniqueItems value
  unevaluatedItems object schema
  required names
  properties map schema
  patternProperties map schema
  propertyNames object schema
  additionalProperties object schema
  minProperties value
  maxProperties value
  unevaluatedProperties object schema
  allOf schemas schema
  oneOf schemas schema
  anyOf schemas schema
  not object schema
  if object schema
  then object schema
  else object schema
  $anchor:anchor text
  $dynamicAnchor:dynamicAnchor text
  $dynamicRef:dynamicRef text
  $vocabulary:vocabulary text
  contentEncoding text
  contentMediaType text
  contentSchema object schema
  discriminator object discriminator
  xml object xml
  externalDocs object externalDocumentation
  examples value
  default value
  $schema:dialect text
discriminator
  propertyName text
  mapping texts
xml
  name text
  namespace text
  prefix text
  attribute value
  wrapped value
securityScheme
  name text
  description text
  type text
  in text
  scheme text
  bearerFormat text
  flows always oauthFlows
  openIdConnectUrl text
oauthFlows
  implicit object oauthFlow
  password object oauthFlow
  clientCredentials object oauthFlow
  authorizationCode object oauthFlow
oauthFlow
  authorizationUrl text
  tokenUrl text
  refreshUrl text
  scopes texts
)";

using Grammar = std::map<std::string, std::vector<Field>, std::less<>>;

Grammar readGrammar() {
    const std::map<std::string, Shape> shapes{{"text", Shape::Text},
                                              {"value", Shape::Value},
                                              {"flag", Shape::Flag},
                                              {"types", Shape::Types},
                                              {"object", Shape::Object},
                                              {"always", Shape::Always},
                                              {"map", Shape::Map},
                                              {"operations", Shape::Operations},
                                              {"variables", Shape::Variables},
                                              {"texts", Shape::TextMap},
                                              {"named", Shape::Named},
                                              {"parameters", Shape::Parameters},
                                              {"schemas", Shape::Schemas},
                                              {"requirements", Shape::Requirements},
                                              {"set", Shape::Set},
                                              {"names", Shape::NameSet}};
    Grammar result;
    std::string section;
    std::istringstream lines{std::string(grammar.substr(1))};
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(' ')) {
            section = line;
            continue;
        }
        std::istringstream words(line);
        std::string member, shape, child;
        words >> member >> shape >> child;
        const std::size_t colon = member.find(':');
        const std::string name = colon == std::string::npos ? member : member.substr(colon + 1);
        result[section].push_back({member.substr(0, colon), section + "." + name, shapes.at(shape), child});
    }
    // Objects whose members are their entries.
    for (const auto& [name, child] :
         {std::pair{"paths", "pathItem"}, {"responses", "response"}, {"callback", "pathItem"}})
        result[name] = {{"", name, Shape::Map, child}};
    result["securityRequirement"] = {};
    return result;
}

bool has(const Json& object, const char* member) {
    return object.contains(member) && !object.at(member).is_null();
}

/// Whether another member of the object makes this one void.
bool isVoid(std::string_view section, const Json& object, const std::string& member) {
    if (section == "parameter" || section == "header" || section == "mediaType") {
        if (member == "examples" && object.contains("example"))
            return true;
        if (member == "content" && object.contains("schema"))
            return true;
    }
    if (section == "parameter" && (member == "allowEmptyValue" || member == "allowReserved"))
        return object.at("in") != "query";
    if (section == "link" && member == "operationId")
        return has(object, "operationRef");
    if (section == "schema" && member == "enum")
        return object.contains("const") || !object.at("enum").is_array();
    if (section == "schema" && member == "required")
        return !object.at("required").is_array();
    if (section == "securityScheme") {
        const std::map<std::string, std::string> types{
            {"name", "apiKey"},       {"in", "apiKey"},    {"scheme", "http"},
            {"bearerFormat", "http"}, {"flows", "oauth2"}, {"openIdConnectUrl", "openIdConnect"}};
        const auto type = types.find(member);
        return type != types.end() && object.at("type") != type->second;
    }
    return false;
}

} // namespace

const std::vector<Field>& fieldsOf(std::string_view section) {
    static const Grammar grammars = readGrammar();
    return grammars.find(section)->second;
}

const Json* memberOf(std::string_view section, const Json& object, const Field& field) {
    static const Json yes = true;
    static const Json empty = Json::object();
    static const Json noText = "";
    if (section == "parameter" && field.member == "required" && object.at("in") == "path")
        return &yes; // whatever the document says
    const bool isAlways = field.shape == Shape::Always && !isVoid(section, object, field.member);
    const auto found = object.find(field.member);
    if (found == object.end()) {
        if (section == "serverVariable" && field.member == "default")
            return &noText;
        return isAlways ? &empty : nullptr;
    }
    if (isVoid(section, object, field.member) || (field.shape == Shape::Text && found->is_null()))
        return nullptr;
    return &*found;
}

std::string componentsOf(std::string_view section) {
    static const std::map<std::string, std::string, std::less<>> sections{
        {"schema", "schemas"},   {"response", "responses"},        {"parameter", "parameters"},
        {"example", "examples"}, {"requestBody", "requestBodies"}, {"header", "headers"},
        {"link", "links"},       {"callback", "callbacks"},        {"pathItem", "pathItems"}};
    const auto found = sections.find(section);
    return found == sections.end() ? "" : found->second;
}

bool allowsReferences(std::string_view section) {
    return !componentsOf(section).empty();
}

bool isOpenAPI30(const Json& document) {
    return document.at("openapi").get<std::string>().starts_with("3.0");
}

bool isReference(const Json& value) {
    return value.is_object() && value.contains("$ref");
}

std::string targetName(const Json& reference) {
    const std::string text = reference.at("$ref");
    return text.substr(text.rfind('/') + 1);
}

std::string escaped(std::string_view key) {
    std::string token;
    for (const char c : key)
        token += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
    return token;
}

std::vector<std::string> variableNames(const Json& server) {
    std::vector<std::string> names;
    const std::string url = server.at("url");
    for (std::size_t open = url.find('{'); open != std::string::npos; open = url.find('{', open + 1))
        if (const std::size_t close = url.find('}', open); close != std::string::npos)
            names.push_back(url.substr(open + 1, close - open - 1));
    return names;
}

const Json& asObject(const Json& value) {
    static const Json everything = Json::object();
    static const Json nothing{{"not", Json::object()}};
    return value.is_boolean() ? value.get<bool>() ? everything : nothing : value;
}

} // namespace specloom::openapi_diff::mutations
