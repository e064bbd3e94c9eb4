#pragma once

#include "code_morph_typescript/project.h"
#include "openapi_generator/plugin_context.h"

namespace specloom::openapi_generator::server_nestjs {

/// What the parts of a NestJS server share.
using PluginContext = PluginContextOf<code_morph::typescript::Project>;

} // namespace specloom::openapi_generator::server_nestjs
