#include "openapi_generator_server_express/parts.h"

#include "code_morph_typescript/names.h"
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
    file_->setText(context_->templates.render(templateName_, *data_));
}

void ModuleRouter::collectData() {
    jv::JV* list = data().setArray("operations");
    for (const openapi::OperationRef& ref : operations_) {
        jv::JV* operation = list->appendObject();
        operation->setString("method", openapi::operationKey(ref.method));
        operation->setString("url", toExpressRoute(ref.path));
    }
}

void ModulesIndex::collectData() {
    jv::JV* list = data().setArray("imports");
    for (const std::string& module : modules_) {
        jv::JV* import = list->appendObject();
        import->setString("name", importNameOf(module));
        import->setString("path", "./" + module);
    }
}

void PackageJson::collectData() {
    data().setString("name", context().configuration.packageName);
    data().setString("version", context().configuration.packageVersion);
}

} // namespace specloom::openapi_generator::server_express
