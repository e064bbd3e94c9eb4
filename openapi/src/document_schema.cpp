#include "openapi/document_schema.h"

#include "jv/yaml_reader.h"
#include "openapi/schema_data.h"

namespace specloom::openapi {

namespace {

[[nodiscard]] jv::schema::Schema compile30() {
    return jv::schema::Schema::compile(*jv::parseYAML(schemaData("3.0-schema.yaml"))->root());
}

[[nodiscard]] jv::schema::Schema compile31() {
    // Known by their identifiers, and where the published ones have a second name, by that.
    jv::schema::SchemaRegistry registry;
    const auto add = [&registry](std::string_view uri, std::string_view file) {
        registry.add(uri, *jv::parseYAML(schemaData(file))->root());
    };
    add("", "3.1-schema.yaml");
    add("https://spec.openapis.org/oas/3.1/dialect/base", "3.1-dialect.yaml");
    add("https://spec.openapis.org/oas/3.1/meta/base", "3.1-meta.yaml");
    jv::schema::CompileOptions options;
    options.registry = &registry;
    return jv::schema::Schema::compile(*jv::parseYAML(schemaData("3.1.yaml"))->root(), options);
}

} // namespace

const jv::schema::Schema& documentSchema(std::string_view version) {
    if (version.starts_with("3.0")) {
        static const jv::schema::Schema schema = compile30();
        return schema;
    }
    static const jv::schema::Schema schema = compile31();
    return schema;
}

} // namespace specloom::openapi
