#include "openapi_generator_server_express/parts.h"

#include "code_morph_typescript/names.h"
#include "foundation/file_system.h"
#include "openapi_generator_server_express/express_route.h"

namespace specloom::openapi_generator::server_express {
namespace {

/// What modules/index.ts calls a module. A module that is called as the parameter of the function there would
/// be out of its sight.
std::string importNameOf(const std::string& module) {
    return module == "app" ? "_app" : code_morph::typescript::toModuleBinding(module);
}

} // namespace

void Part::generateCode() {
    file_->setText(context_->templates.render(templateName_, data));
}

void ModuleRouter::collectData() {
    nlohmann::json& list = data["operations"] = nlohmann::json::array();
    for (const openapi::OperationRef& ref : operations_)
        list.push_back({{"method", openapi::operationKey(ref.method)}, {"url", toExpressRoute(ref.path)}});
}

void ModulesIndex::collectData() {
    nlohmann::json& list = data["imports"] = nlohmann::json::array();
    for (const std::string& module : modules_)
        list.push_back({{"name", importNameOf(module)}, {"path", "./" + module}});
}

void OpenAPISchemaFile::generateCode() {
    file_->setText(context_->project.fileSystem().readFile(inputPath_));
}

void PackageJson::collectData() {
    data["name"] = context().configuration.packageName;
    data["version"] = context().configuration.packageVersion;
}

} // namespace specloom::openapi_generator::server_express
