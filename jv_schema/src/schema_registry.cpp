#include "jv_schema/schema_registry.h"

#include "jv/jv_document.h"
#include "jv_schema/embedded_schemas.h"
#include "jv_schema/uri.h"

namespace specloom::jv::schema {

void SchemaRegistry::add(std::string_view uri, const JV& schema) {
    const std::shared_ptr<const JV> copy = JVDocument::clone(schema);
    const std::string_view name = splitFragment(uri).uri;
    schemas_.insert_or_assign(std::string(name), copy);
    if (!copy->isObject())
        return;
    for (const char* keyword : {"$id", "id"}) {
        const JV* id = copy->get(keyword);
        if (id == nullptr || !id->isString())
            continue;
        std::string own = resolveUri(name, splitFragment(id->text()).uri);
        if (!own.empty())
            schemas_.insert_or_assign(std::move(own), copy);
    }
}

std::shared_ptr<const JV> SchemaRegistry::find(std::string_view uri) const {
    const auto found = schemas_.find(uri);
    return found == schemas_.end() ? embeddedSchema(uri) : found->second;
}

} // namespace specloom::jv::schema
