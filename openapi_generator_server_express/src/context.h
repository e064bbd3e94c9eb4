#pragma once

#include "code_morph_typescript/project.h"
#include "openapi/openapi.h"
#include "openapi_generator_server_express/configuration.h"
#include "templating/template_set.h"

namespace specloom::openapi_generator::server_express {

/// What the plugin and its parts share.
struct Context {
    explicit Context(FileSystem& fileSystem);

    const openapi::OpenAPI* document = nullptr;
    Configuration configuration;
    templating::TemplateSet templates;
    code_morph::typescript::Project project;
};

} // namespace specloom::openapi_generator::server_express
