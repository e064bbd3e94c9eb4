#include "test_support/openapi_structure.h"

#include "test_support/texts.h"

#include <algorithm> // std::find_if
#include <string>    // std::string
#include <utility>   // std::pair
#include <vector>    // std::vector

namespace specloom::test_support {

namespace {

using K = ObjectKind;

/// The kinds in the order of their enumeration, each with its members:
///
///   name        any value         name'        a text        name=kind      an object of that kind
///   name[]      a list of values  name[]=kind  of objects    name{}, name{}=kind  the same for maps
///
/// Lists and maps are left out when they are empty, everything else is kept: "!" is for a list or map that is
/// kept all the same, "?" for an object that is left out, and "+" in front for what 3.0 does not know.
constexpr const char* structure = R"(
any:
text:
openapi: openapi info=info jsonSchemaDialect' servers[]=server components=components? paths=paths
    webhooks{}=pathItem security[]=securityRequirement tags[]=tag externalDocs=externalDocumentation
info: title' summary' description' termsOfService' contact=contact license=license version
contact: name' url' email'
license: name' identifier' url'
server: url' description' variables{}=serverVariable
serverVariable: enum[] default' description'
components: schemas{}=schema responses{}=response parameters{}=parameter examples{}=example
    requestBodies{}=requestBody headers{}=header securitySchemes{}=securityScheme links{}=link
    callbacks{}=callback pathItems{}=pathItem
paths: *=pathItem
pathItem: summary' description' parameters[]=parameter servers[]=server get=operation put=operation
    post=operation delete=operation options=operation head=operation patch=operation trace=operation
operation: tags[] summary' description' externalDocs=externalDocumentation operationId'
    parameters[]=parameter requestBody=requestBody responses=responses callbacks{}=callback deprecated
    security[]=securityRequirement! servers[]=server
externalDocumentation: url' description'
parameter:
pathParameter: name' in description' required deprecated style explode example examples{}=example
    schema=schema content{}=mediaType
queryParameter: allowEmptyValue allowReserved name' in description' required deprecated style explode example
    examples{}=example schema=schema content{}=mediaType
headerParameter: name' in description' required deprecated style explode example examples{}=example
    schema=schema content{}=mediaType
cookieParameter: name' in description' required deprecated style explode example examples{}=example
    schema=schema content{}=mediaType
requestBody: description' content{}=mediaType! required
mediaType: schema=schema example examples{}=example encoding{}=encoding
encoding: contentType' headers{}=header style explode allowReserved
responses: *=response
response: description' headers{}=header content{}=mediaType links{}=link
callback: *=pathItem
example: summary' description' value externalValue'
link: operationRef' operationId' parameters{} requestBody description' server=server
header: description' required deprecated allowEmptyValue style explode allowReserved example
    examples{}=example schema=schema content{}=mediaType
tag: name' description' externalDocs=externalDocumentation
schema: type enum[] required[] title' description' pattern' $schema format multipleOf maximum exclusiveMaximum
    minimum exclusiveMinimum maxLength minLength maxItems minItems uniqueItems maxProperties minProperties
    properties{}=schema patternProperties{}=schema items=schema additionalProperties=schema
    propertyNames=schema not=schema prefixItems[]=schema allOf[]=schema oneOf[]=schema anyOf[]=schema
    discriminator=discriminator xml=xml externalDocs=externalDocumentation
    +$id' +$comment' +$anchor' +$dynamicAnchor' +$dynamicRef' +$vocabulary' +default +deprecated +readOnly
    +writeOnly +contentEncoding +contentMediaType +maxContains +minContains +$defs{}=schema
    +definitions{}=schema +dependentSchemas{}=schema +dependentRequired{} +examples{} +contentSchema=schema
    +additionalItems=schema +contains=schema +unevaluatedItems=schema +unevaluatedProperties=schema +if=schema
    +then=schema +else=schema
discriminator: propertyName mapping{}
xml: name' namespace' prefix' attribute wrapped
securityScheme:
apiKeyScheme: type description' name' in
httpScheme: type description' scheme bearerFormat'
mutualTLSScheme: type description'
oauth2Scheme: type description' flows=oauthFlows
openIdConnectScheme: type description' openIdConnectUrl
oauthFlows: implicit=oauthFlow password=oauthFlow clientCredentials=oauthFlow authorizationCode=oauthFlow
oauthFlow: authorizationUrl' tokenUrl' refreshUrl' scopes{}!
securityRequirement: *
)";

struct ObjectInfo {
    std::string_view name;
    std::vector<std::string_view> words;
    std::vector<MemberInfo> members;
};

/// Whether `word` ends so, and without that from now on.
[[nodiscard]] bool takeEnd(std::string_view& word, std::string_view end) {
    const bool isThere = word.ends_with(end);
    word.remove_suffix(isThere ? end.size() : 0);
    return isThere;
}

[[nodiscard]] MemberInfo memberOf(std::string_view word, const std::vector<ObjectInfo>& objects) {
    MemberInfo member{word, K::Any, Shape::One, WhenEmpty::Kept, Family::Both};
    if (word.starts_with('+')) {
        member.family = Family::Only31;
        word.remove_prefix(1);
    }
    const bool isKept = takeEnd(word, "!");
    const bool isLeftOut = takeEnd(word, "?");
    if (const std::size_t at = word.find('='); at != std::string_view::npos) {
        const auto isNamed = [&](const ObjectInfo& object) { return object.name == word.substr(at + 1); };
        member.kind = static_cast<K>(std::find_if(objects.begin(), objects.end(), isNamed) - objects.begin());
        word.remove_suffix(word.size() - at);
    } else if (takeEnd(word, "'")) {
        member.kind = K::Text;
    }
    member.shape = takeEnd(word, "[]") ? Shape::List : takeEnd(word, "{}") ? Shape::Map : Shape::One;
    if (isLeftOut || (member.shape != Shape::One && !isKept))
        member.whenEmpty = WhenEmpty::LeftOut;
    member.key = word;
    return member;
}

[[nodiscard]] std::vector<ObjectInfo> makeTable() {
    static const std::vector<std::string> words = wordsOf(structure);
    std::vector<ObjectInfo> objects;
    for (std::string_view word : words) {
        if (takeEnd(word, ":"))
            objects.push_back({word, {}, {}});
        else
            objects.back().words.push_back(word);
    }
    for (ObjectInfo& object : objects)
        for (const std::string_view word : object.words)
            object.members.push_back(memberOf(word, objects));
    return objects;
}

[[nodiscard]] const ObjectInfo& infoOf(K kind) {
    static const std::vector<ObjectInfo> table = makeTable();
    return table.at(static_cast<std::size_t>(kind));
}

/// The kind for the text in a member of an object.
[[nodiscard]] K byText(const jv::JV& object, std::string_view key,
                       std::initializer_list<std::pair<std::string_view, K>> kinds) {
    const jv::JV* text = object.isObject() ? object.get(key) : nullptr;
    for (const auto& [name, kind] : kinds)
        if (text != nullptr && text->isString() && text->text() == name)
            return kind;
    return K::Any;
}

} // namespace

std::span<const MemberInfo> membersOf(ObjectKind kind) {
    return infoOf(kind).members;
}

const MemberInfo* findMember(ObjectKind kind, std::string_view key) {
    const auto members = membersOf(kind);
    const auto named = [&](std::string_view wanted) {
        return std::find_if(members.begin(), members.end(),
                            [&](const MemberInfo& member) { return member.key == wanted; });
    };
    auto found = named(key);
    if (found == members.end() && !key.starts_with("x-"))
        found = named("*");
    return found == members.end() ? nullptr : &*found;
}

ObjectKind kindOf(ObjectKind kind, const jv::JV& value) {
    if (kind == K::Parameter)
        return byText(value, "in",
                      {{"path", K::PathParameter},
                       {"query", K::QueryParameter},
                       {"header", K::HeaderParameter},
                       {"cookie", K::CookieParameter}});
    if (kind == K::SecurityScheme)
        return byText(value, "type",
                      {{"apiKey", K::ApiKeyScheme},
                       {"http", K::HttpScheme},
                       {"mutualTLS", K::MutualTLSScheme},
                       {"oauth2", K::OAuth2Scheme},
                       {"openIdConnect", K::OpenIdConnectScheme}});
    return kind;
}

std::string_view nameOf(ObjectKind kind) {
    const std::string_view name = infoOf(kind).name;
    return kind == K::Any || kind == K::Text ? ""
           : name.ends_with("Parameter")     ? "parameter"
           : name.ends_with("Scheme")        ? "securityScheme"
                                             : name;
}

std::string_view sectionOf(ObjectKind kind) {
    for (const MemberInfo& section : membersOf(K::Components))
        if (section.kind == kind && kind != K::SecurityScheme)
            return section.key;
    return {};
}

} // namespace specloom::test_support
