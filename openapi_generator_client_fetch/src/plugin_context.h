#pragma once

#include "code_morph_typescript/project.h"
#include "openapi_generator/plugin_context.h"

namespace specloom::openapi_generator::client_fetch {

/// What the parts of a fetch client share.
using PluginContext = PluginContextOf<code_morph::typescript::Project>;

} // namespace specloom::openapi_generator::client_fetch
