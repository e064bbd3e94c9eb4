#include "openapi/schema_format.h"

#include "foundation/hash.h"
#include "foundation/message.h"

#include <stdexcept> // std::runtime_error

namespace specloom::openapi {

namespace {

struct NameHash {
    [[nodiscard]] std::size_t operator()(std::string_view name) const noexcept {
        return static_cast<std::size_t>(fnv1a(name));
    }
};

using Table = std::unordered_map<std::string_view, SchemaFormat, NameHash>;

[[nodiscard]] Table builtInFormats() {
    Table table;
    const auto add = [&](SchemaType type, std::initializer_list<const char*> names) {
        for (const char* name : names)
            table.emplace(name, SchemaFormat{name, type});
    };
    add(SchemaType::String,
        {"date",          "date-time",    "duration",      "email",        "hostname",
         "idn-email",     "idn-hostname", "ipv4",          "ipv6",         "iri",
         "iri-reference", "json-pointer", "password",      "regex",        "relative-json-pointer",
         "time",          "uri",          "uri-reference", "uri-template", "uuid"});
    add(SchemaType::Number, {"double", "float"});
    add(SchemaType::Integer, {"int32", "int64"});
    return table;
}

[[nodiscard]] const SchemaFormat* findBuiltIn(std::string_view name) {
    static const Table table = builtInFormats();
    const auto found = table.find(name);
    return found == table.end() ? nullptr : &found->second;
}

} // namespace

void SchemaFormatRegistry::add(std::string_view name, SchemaType type) {
    if (find(name) != nullptr)
        throw std::runtime_error(formatMessage("Schema format already exists: {}", name));
    auto format = std::make_unique<SchemaFormat>(SchemaFormat{std::string(name), type});
    const std::string_view key = format->name;
    custom_.emplace(key, std::move(format));
}

void SchemaFormatRegistry::addFromJV(const jv::JV& value) {
    if (value.isNull())
        return;
    if (!value.isArray())
        throw std::runtime_error("Custom format JV must be an array");
    for (const jv::JV* element : value.elements()) {
        const std::string_view name = element->getRequiredString("name")->text();
        add(name, schemaTypeFromName(element->getRequiredString("type")->text()));
    }
}

const SchemaFormat* SchemaFormatRegistry::find(std::string_view name) const {
    const auto found = custom_.find(name);
    return found == custom_.end() ? findBuiltIn(name) : found->second.get();
}

} // namespace specloom::openapi
