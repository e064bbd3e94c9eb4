#pragma once

#include "code_morph_typescript/project.h"
#include "openapi/openapi.h"

namespace specloom::openapi_generator::client_fetch {

/// What the parts of a fetch client share.
struct PluginContext {
    const openapi::OpenAPI* document = nullptr; ///< null before the parts are made
    code_morph::typescript::Project project;
};

} // namespace specloom::openapi_generator::client_fetch
