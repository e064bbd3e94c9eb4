#include "openapi_generator_client_fetch/plugin.h"

#include "openapi/operation_ref.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_client_fetch/action_func.h"
#include "openapi_generator_client_fetch/fixed_files.h"

namespace specloom::openapi_generator::client_fetch {

Plugin::Plugin(PluginRunner& host) : openapi_generator::Plugin(host), context_(host.fileSystem()) {}

void Plugin::configureParts() {
    context_.document = document();
    context_.project.setRootPath(outputPath());
    context_.project.sourceFile("types");
    context_.project.sourceFile("formatters");
    auto& actions = context_.project.sourceFile("actions");
    for (const openapi::OperationRef& ref : openapi::operationsOf(*context_.document))
        addPart<ActionFunc>(actions, ref);
    addPart<UtilsFile>(context_.project.sourceFile("utils"));
    addPart<IndexFile>(context_.project.sourceFile("index"));
}

void Plugin::generateCode() {
    openapi_generator::Plugin::generateCode();
    context_.project.saveAll();
}

} // namespace specloom::openapi_generator::client_fetch
