#include "openapi_generator_server_spring/schema_type_info.h"

#include "code_morph_java/spring/names.h"
#include "openapi_generator_server_spring/joined_text.h"

namespace specloom::openapi_generator::server_spring {

std::string textOf(const std::vector<Constraint>& constraints) {
    std::string text;
    for (const Constraint& constraint : constraints)
        appendBehind(" ", constraint.text, text);
    return text;
}

std::string_view SchemaTypeInfo::text() const noexcept {
    return isList() ? std::string_view(containerText) : code_morph::java::classOf(typeName);
}

void SchemaTypeInfo::addImports(code_morph::java::SourceFile& file) const {
    file.addImport(containerClass);
    file.addImport(typeName);
}

} // namespace specloom::openapi_generator::server_spring
