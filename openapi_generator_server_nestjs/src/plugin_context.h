#pragma once

#include "code_morph_typescript/project.h"
#include "openapi/openapi.h"

namespace specloom::openapi_generator::server_nestjs {

/// What the parts of a NestJS server share.
struct PluginContext {
    const openapi::OpenAPI* document = nullptr; ///< null before the parts are made
    code_morph::typescript::Project project;
};

} // namespace specloom::openapi_generator::server_nestjs
