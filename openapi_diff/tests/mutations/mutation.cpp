#include "mutations/mutation.h"

#include <map> // std::map
#include <set> // std::set

namespace specloom::openapi_diff::mutations {
namespace {

/// An object that can be added where one of a section may stand.
Json sample(const std::string& section) {
    static const Json samples = Json::parse(R"({
        "contact": {"name": "n"},
        "license": {"name": "n", "url": "https://example.com/licence"},
        "server": {"url": "https://added.example.com/{v}", "variables": {"v": {"default": "d", "enum": ["d"]}}},
        "serverVariable": {"default": "d"},
        "tag": {"name": "added tag", "description": "d"},
        "externalDocumentation": {"url": "https://example.com/docs", "description": "d"},
        "pathItem": {"summary": "s", "get": {"operationId": "added", "deprecated": true,
            "parameters": [{"name": "p", "in": "query", "required": true, "schema": {"type": "string"}}],
            "responses": {"200": {"description": "d"}}}},
        "operation": {"operationId": "added", "responses": {"200": {"description": "d"}}},
        "parameter": {"name": "added", "in": "query", "required": true, "schema": {"type": "string"}},
        "requestBody": {"required": true, "content": {"text/plain": {"schema": {"type": "string"}}}},
        "mediaType": {"schema": {"type": "string", "maxLength": 9}, "example": "e"},
        "encoding": {"contentType": "text/plain", "explode": true},
        "response": {"description": "d", "content": {"text/plain": {"example": 1}}},
        "callback": {"{$request.body#/added}": {"post": {"operationId": "called",
            "responses": {"200": {"description": "d"}}}}},
        "example": {"summary": "s", "value": {"v": 1}},
        "link": {"operationId": "added", "parameters": {"p": "$request.path.p"}},
        "header": {"description": "d", "required": true, "schema": {"type": "integer"}},
        "schema": {"type": ["string", "null"], "description": "d", "enum": ["a", "b"]},
        "discriminator": {"propertyName": "p", "mapping": {"m": "#/components/schemas/M"}},
        "xml": {"name": "n", "wrapped": true},
        "securityScheme": {"type": "http", "scheme": "basic"},
        "oauthFlow": {"tokenUrl": "https://example.com/token", "scopes": {"s": "d"}},
        "oauthFlows": {"password": {"tokenUrl": "https://example.com/token", "scopes": {"s": "d"}}}
    })");
    return samples.at(section);
}

/// A value for a member of an object; another one than `present`, which may be null.
Json sampleValue(const std::string& key, bool isOpenAPI30, const Json& object, const Json& present) {
    const auto other = [&](std::vector<Json> values) { return values[values[0] == present ? 1 : 0]; };
    const std::string member = key.substr(key.find('.') + 1);
    static const std::set<std::string> flags{"required",      "deprecated", "allowEmptyValue", "explode",
                                             "allowReserved", "readOnly",   "writeOnly",       "uniqueItems",
                                             "attribute",     "wrapped"};
    static const std::set<std::string> numbers{"minimum", "maximum", "multipleOf"};
    static const std::set<std::string> counts{"minContains", "maxContains", "minItems",      "maxItems",
                                              "minLength",   "maxLength",   "minProperties", "maxProperties"};
    if (flags.contains(member))
        return other({true, false});
    if (member.starts_with("exclusive"))
        return isOpenAPI30 ? other({true, false}) : other({3, 4.5});
    if (numbers.contains(member))
        return other({3, 4.5});
    if (counts.contains(member))
        return other({3, 4});
    if (key == "schema.type")
        return other({"string", "boolean"});
    if (key == "schema.format")
        return other({"uuid", "date"});
    if (key == "schema.contentEncoding")
        return other({"base64", "base64url"});
    if (key == "schema.contentMediaType")
        return other({"text/plain", "image/png"});
    if (key == "schema.dialect")
        return other(
            {"https://json-schema.org/draft/2020-12/schema", "https://json-schema.org/draft/2019-09/schema"});
    if (key == "parameter.style") {
        static const std::map<std::string, std::vector<Json>> styles{{"path", {"label", "simple"}},
                                                                     {"query", {"form", "spaceDelimited"}},
                                                                     {"header", {"simple", "simple"}},
                                                                     {"cookie", {"form", "form"}}};
        return other(styles.at(object.at("in")));
    }
    if (member == "style")
        return other({"form", "spaceDelimited"});
    if (key == "openapi.openapi")
        return present.get<std::string>() + "-x";
    if (key == "schema.examples")
        return other({Json{{"a", 1}}, Json{{"a", 2}}});
    if (member == "example" || member == "default" || member == "value" || member == "requestBody" ||
        member == "const")
        return present.is_null() ? Json{{"added", 1.5}} : Json::array({present});
    return present.is_string() ? Json(present.get<std::string>() + " more") : Json("added text");
}

/// Walks the objects of a document and notes what can be done to them.
class Generator {
  public:
    explicit Generator(const Json& document) : document_(document) {}

    std::vector<Mutation> run() {
        object("openapi", "", document_);
        return std::move(mutations_);
    }

  private:
    void note(Kind kind, const std::string& at, const std::string& member, const std::string& key,
              Json value = {}) {
        mutations_.push_back({kind, at, member, key, std::move(value)});
    }

    void place(const std::string& section, const std::string& key, const std::string& at,
               const std::string& member, const Json& value) {
        const std::string pointer = at + "/" + escaped(member);
        if (allowsReferences(section) && isReference(value))
            return reference(section, key, at, member, value);
        if (allowsReferences(section))
            if (const auto name = anotherName(section, "");
                name && !pointer.starts_with("/components/" + componentsOf(section) + "/" + escaped(*name)))
                note(Kind::ObjectReplaced, at, member, key, textFor(section, *name));
        if (value.is_object())
            object(section, pointer, value);
    }

    void reference(const std::string& section, const std::string& key, const std::string& at,
                   const std::string& member, const Json& value) {
        if (const auto name = anotherName(section, targetName(value)))
            note(Kind::ReferenceRedirected, at, member, key, textFor(section, *name));
        Json copy = value;
        while (isReference(copy))
            copy = document_.at("components").at(componentsOf(section)).at(targetName(copy));
        note(Kind::ReferenceReplaced, at, member, key, copy);
        const std::string pointer = at + "/" + escaped(member);
        if (section == "schema" && isOpenAPI30(document_))
            return note(Kind::Unseen, pointer, "description", "", "beside a reference");
        note(value.contains("description") ? Kind::MemberRemoved : Kind::MemberAdded, pointer, "description",
             "reference.description", "beside a reference");
        if (section == "schema")
            note(Kind::Unseen, pointer, "title", "", "beside a reference");
        else
            note(Kind::ExtensionAdded, pointer, "x-added", "", 1);
    }

    void object(const std::string& section, const std::string& at, const Json& value) {
        for (const Field& each : fieldsOf(section))
            field(each, at, value);
        if (section == "securityRequirement")
            return;
        note(Kind::ExtensionAdded, at, "x-added", "", "added");
        for (const auto& [name, extension] : value.items())
            if (name.starts_with("x-")) {
                note(Kind::ExtensionChanged, at, name, "", Json::array({extension}));
                note(Kind::ExtensionRemoved, at, name, "");
            }
        if (section != "paths" && section != "responses" && section != "callback")
            note(Kind::Unseen, at, section == "schema" ? "$comment" : "unknown", "", "text");
    }

    void field(const Field& field, const std::string& at, const Json& object) {
        const std::string child = field.child.substr(0, field.child.find('/'));
        const std::string pointer = at + (field.member.empty() ? "" : "/" + escaped(field.member));
        if (field.shape == Shape::Operations)
            return operations(field, at, object);
        const bool isThere = field.member.empty() || object.contains(field.member);
        if (!isThere)
            return add(field, at, object);
        const Json& value = field.member.empty() ? object : object.at(field.member);
        if (!field.member.empty())
            note(Kind::MemberRemoved, at, field.member, field.key);
        switch (field.shape) {
        case Shape::Text:
        case Shape::Value:
        case Shape::Types:
        case Shape::Flag:
            return note(Kind::MemberChanged, at, field.member, field.key,
                        sampleValue(field.key, isOpenAPI30(document_), object, value));
        case Shape::Object:
            note(Kind::MemberChanged, at, field.member, field.key, sample(child));
            return place(child, field.key, at, field.member, value);
        case Shape::Always:
            return place(child, field.key, at, field.member, value);
        case Shape::Map:
        case Shape::Variables:
            return map(child, field, pointer, value);
        case Shape::TextMap:
            return entries(field, pointer, value, "text");
        default:
            return list(child, field, pointer, value);
        }
    }

    void add(const Field& field, const std::string& at, const Json& object) {
        const std::string child = field.child.substr(0, field.child.find('/'));
        const auto value = [&]() -> Json {
            switch (field.shape) {
            case Shape::Object:
                return sample(child);
            case Shape::Map:
                return Json{{"added", sample(child)}};
            case Shape::TextMap:
                return Json{{"added", "text"}};
            case Shape::Named:
            case Shape::Parameters:
            case Shape::Schemas:
                return Json::array({sample(child)});
            case Shape::Requirements:
                return Json::array({Json{{"added", Json::array()}}});
            case Shape::Set:
            case Shape::NameSet:
                return Json::array({"added"});
            default:
                return sampleValue(field.key, isOpenAPI30(document_), object, Json());
            }
        };
        if (field.shape == Shape::Always || field.shape == Shape::Variables)
            return;
        note(Kind::MemberAdded, at, field.member, field.key, value());
        static const std::set<std::string> needText{"format", "contentEncoding", "contentMediaType",
                                                    "$schema"};
        if (field.shape == Shape::Text && !needText.contains(field.member))
            note(Kind::Unseen, at, field.member, "", Json());
    }

    void operations(const Field& field, const std::string& at, const Json& object) {
        for (const char* method : {"get", "put", "post", "delete", "options", "head", "patch", "trace"})
            if (object.contains(method)) {
                place("operation", field.key, at, method, object.at(method));
                note(Kind::EntryRemoved, at, method, field.key);
                if (!object.contains("trace"))
                    note(Kind::EntryRenamed, at, method, field.key, "trace");
            } else {
                note(Kind::EntryAdded, at, method, field.key, sample("operation"));
            }
    }

    void map(const std::string& section, const Field& field, const std::string& at, const Json& value) {
        for (const auto& [name, entry] : value.items())
            if (!field.member.empty() || !name.starts_with("x-"))
                place(section, field.key, at, name, entry);
        entries(field, at, value, sample(section));
    }

    void entries(const Field& field, const std::string& at, const Json& value, const Json& added) {
        if (field.shape != Shape::Variables)
            note(Kind::EntryAdded, at, field.key == "paths" ? "/added" : "added", field.key, added);
        for (const auto& [name, entry] : value.items()) {
            if (field.member.empty() && name.starts_with("x-"))
                continue;
            note(Kind::EntryRemoved, at, name, field.key);
            note(Kind::EntryRenamed, at, name, field.key, name + "Renamed");
            if (field.shape == Shape::TextMap)
                note(Kind::MemberChanged, at, name, field.key, "another text");
        }
    }

    void list(const std::string& section, const Field& field, const std::string& at, const Json& value) {
        if (!value.is_array())
            return;
        const bool isOfObjects = field.shape != Shape::Set && field.shape != Shape::NameSet;
        const Json added = field.shape == Shape::Requirements ? Json{{"added", {"scope"}}}
                           : isOfObjects                      ? sample(section)
                                                              : Json("added");
        for (const std::size_t index : std::set<std::size_t>{0, value.size() / 2, value.size()})
            note(Kind::ItemAdded, at, std::to_string(index), field.key, added);
        for (std::size_t index = 0; index < value.size(); ++index) {
            const std::string member = std::to_string(index);
            note(Kind::ItemRemoved, at, member, field.key);
            if (index > 0)
                note(Kind::ItemMoved, at, member, field.key, (index * 7) % value.size());
            if (isOfObjects && field.shape != Shape::Requirements)
                place(section, field.key, at, member, value[index]);
        }
    }

    /// The name of a component of a section that is not `name` and no reference itself.
    [[nodiscard]] std::optional<std::string> anotherName(const std::string& section,
                                                         const std::string& name) const {
        const Json& components = document_.value("components", Json::object());
        const std::string key = componentsOf(section);
        if (!components.contains(key))
            return std::nullopt;
        std::vector<std::string> names;
        for (const auto& [other, value] : components.at(key).items())
            if (other != name && !isReference(value))
                names.push_back(other);
        return names.empty() ? std::nullopt : std::optional(names[mutations_.size() % names.size()]);
    }

    static Json textFor(const std::string& section, const std::string& name) {
        return Json{{"$ref", "#/components/" + componentsOf(section) + "/" + name}};
    }

    const Json& document_;
    std::vector<Mutation> mutations_;
};

} // namespace

const char* textOf(Kind kind) {
    static constexpr const char* texts[] = {
        "member added",    "member removed",       "member changed",     "item added",
        "item removed",    "item moved",           "entry added",        "entry removed",
        "entry renamed",   "reference redirected", "reference replaced", "object replaced",
        "extension added", "extension changed",    "extension removed",  "unseen"};
    return texts[static_cast<int>(kind)];
}

std::string Mutation::text() const {
    return std::string(textOf(kind)) + " at " + at + "/" + escaped(member) + ": " + value.dump();
}

void Mutation::apply(Json& document) const {
    Json& target = document.at(Json::json_pointer(at));
    const auto index = [&] { return std::stoul(member); };
    switch (kind) {
    case Kind::MemberRemoved:
    case Kind::EntryRemoved:
    case Kind::ExtensionRemoved:
        target.erase(member);
        return;
    case Kind::ItemAdded:
        target.insert(target.begin() + static_cast<std::ptrdiff_t>(index()), value);
        return;
    case Kind::ItemRemoved:
        target.erase(index());
        return;
    case Kind::ItemMoved: {
        const Json item = target.at(index());
        target.erase(index());
        target.insert(target.begin() + value.get<std::ptrdiff_t>(), item);
        return;
    }
    case Kind::EntryRenamed: {
        const Json entry = target.at(member);
        target.erase(member);
        target[value.get<std::string>()] = entry;
        return;
    }
    default:
        if (target.is_array())
            target[index()] = value;
        else
            target[member] = value;
    }
}

std::vector<Mutation> mutationsOf(const Json& document) {
    return Generator(document).run();
}

} // namespace specloom::openapi_diff::mutations
