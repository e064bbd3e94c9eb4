#include "mutations/grammar.h"

#include "test_support/openapi_structure.h"

#include <algorithm> // std::any_of
#include <map>       // std::map
#include <set>       // std::set

namespace specloom::openapi_diff::mutations {
namespace {

using test_support::MemberInfo;
using test_support::ObjectKind;

using Grammar = std::map<std::string, std::vector<Field>, std::less<>>;

/// Fields that are compared otherwise than what stands there says.
const std::map<std::string_view, Shape> ownShapes{{"openapi.info", Shape::Always},
                                                  {"openapi.paths", Shape::Always},
                                                  {"openapi.components", Shape::Always},
                                                  {"operation.responses", Shape::Always},
                                                  {"securityScheme.flows", Shape::Always},
                                                  {"server.variables", Shape::Variables},
                                                  {"operation.deprecated", Shape::Flag},
                                                  {"parameter.required", Shape::Flag},
                                                  {"parameter.allowEmptyValue", Shape::Flag},
                                                  {"parameter.allowReserved", Shape::Flag},
                                                  {"header.required", Shape::Flag},
                                                  {"schema.deprecated", Shape::Flag},
                                                  {"schema.type", Shape::Types},
                                                  {"schema.required", Shape::NameSet},
                                                  {"schema.examples", Shape::Value}};

const std::set<std::string_view> notCompared{
    "header.style",
    "schema.$comment",
    "schema.$defs",
    "schema.definitions",
    "schema.additionalItems",
    "schema.dependentRequired",
    "schema.dependentSchemas",
};

/// In the configuration.
std::string nameOfField(std::string_view section, std::string_view member) {
    if (section == "schema" && member.starts_with('$'))
        return member == "$schema" ? "dialect" : std::string(member.substr(1));
    return std::string(member);
}

Shape shapeOf(const MemberInfo& member) {
    const bool isPlain = member.kind == ObjectKind::Any || member.kind == ObjectKind::Text;
    switch (member.shape) {
    case test_support::Shape::One:
        return !isPlain ? Shape::Object : member.kind == ObjectKind::Text ? Shape::Text : Shape::Value;
    case test_support::Shape::Map:
        return isPlain ? Shape::TextMap : Shape::Map;
    default:
        break;
    }
    switch (member.kind) {
    case ObjectKind::Server:
    case ObjectKind::Tag:
        return Shape::Named;
    case ObjectKind::Parameter:
        return Shape::Parameters;
    case ObjectKind::SecurityRequirement:
        return Shape::Requirements;
    case ObjectKind::Schema:
        return Shape::Schemas;
    default:
        return Shape::Set;
    }
}

void addField(std::vector<Field>& fields, const std::string& section, const MemberInfo& member) {
    std::string child(test_support::nameOf(member.kind));
    if (member.key == "*") { // an object whose members are its entries
        if (!child.empty())
            fields.push_back({"", section, Shape::Map, child});
        return;
    }
    const std::string path = section + "." + std::string(member.key);
    const auto isThere = [&](const Field& field) { return field.member == member.key; };
    if (notCompared.contains(path) || (section == "pathItem" && member.kind == ObjectKind::Operation) ||
        std::any_of(fields.begin(), fields.end(), isThere))
        return;
    const auto own = ownShapes.find(path);
    const Shape shape = own == ownShapes.end() ? shapeOf(member) : own->second;
    if (shape == Shape::Named)
        child += member.kind == ObjectKind::Tag ? "/name" : "/url";
    fields.push_back(
        {std::string(member.key), section + "." + nameOfField(section, member.key), shape, child});
}

template <typename Use>
void forEachKind(Use use) {
    for (int number = 0; number <= static_cast<int>(ObjectKind::SecurityRequirement); ++number)
        use(static_cast<ObjectKind>(number));
}

/// The fields of all kinds of object that have one section.
Grammar makeGrammar() {
    Grammar result;
    forEachKind([&](ObjectKind kind) {
        const std::string section(test_support::nameOf(kind));
        for (const MemberInfo& member : test_support::membersOf(kind))
            addField(result[section], section, member);
    });
    result["pathItem"].push_back({"operations", "pathItem.operations", Shape::Operations, "operation"});
    result["schema"].push_back({"const", "schema.const", Shape::Value, ""}); // an `enum` when written back
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
    static const Grammar grammars = makeGrammar();
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
    std::string result;
    forEachKind([&](ObjectKind kind) {
        if (test_support::nameOf(kind) == section && !test_support::sectionOf(kind).empty())
            result = test_support::sectionOf(kind);
    });
    return result;
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
