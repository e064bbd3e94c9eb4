#include "jv_schema/openapi_schema.h"

#include "jv_schema/carried_schemas.h"

namespace specloom::jv::schema {

namespace {

[[nodiscard]] Schema compileCarried(std::string_view uri) {
    return Schema::compile(*carriedSchema(uri));
}

} // namespace

const Schema& openapiSchema(std::string_view version) {
    if (version.starts_with("3.0")) {
        static const Schema schema =
            compileCarried("https://spec.openapis.org/oas/3.0/schema/WORK-IN-PROGRESS");
        return schema;
    }
    static const Schema schema = compileCarried("specloom:openapi-3.1");
    return schema;
}

} // namespace specloom::jv::schema
