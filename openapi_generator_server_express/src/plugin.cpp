#include "openapi_generator_server_express/plugin.h"

#include "openapi_generator/document_name.h"
#include "openapi_generator/notes.h"
#include "openapi_generator/operation_grouper.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator/schema_file.h"
#include "openapi_generator_server_express/express_templates.h"
#include "openapi_generator_server_express/parts.h"

#include <utility> // std::move

#include <fmt/core.h>

namespace specloom::openapi_generator::server_express {

Context::Context(FileSystem& fileSystem) : templates({expressTemplates()}), project(fileSystem) {}

Plugin::Plugin(PluginRunner& host)
    : openapi_generator::Plugin(host), context_(std::make_unique<Context>(host.fileSystem())) {
    setPackage("@loomwork/server-express", "0.1.0");
}

Plugin::~Plugin() = default;

void Plugin::configure(const jv::JV& root) {
    readConfiguration(root, context_->configuration);
}

void Plugin::configureSelf() {
    context_->project.setRootPath(outputPath());
    context_->document = document();
    context_->configuration.packageName = packageName();
    context_->configuration.packageVersion = packageVersion();
}

void Plugin::configureParts() {
    addModules();
    code_morph::typescript::Project& project = context_->project;
    if (context_->configuration.appObject)
        addPart<AppObject>(*context_, project.sourceFile("app"));
    if (context_->configuration.serverObject)
        addPart<ServerObject>(*context_, project.sourceFile("server"));
    if (context_->configuration.packageFiles)
        addPackage();
    addSchemaCopy();
}

void Plugin::addModules() {
    OperationGrouper grouper;
    grouper.addCriterion(GroupingCriterion::Tag);
    grouper.group(*context_->document);
    operationsWithoutTag_ = grouper.ungrouped().size();
    std::vector<std::string> modules;
    for (const auto& [tag, operations] : grouper.groups())
        modules.push_back(addModule(operations));
    addPart<ModulesIndex>(*context_, context_->project.sourceFile("modules/index"), std::move(modules));
}

std::string Plugin::addModule(const std::vector<openapi::OperationRef>& operations) {
    const openapi::Tag& tag = *operations.front().operation->tags().front();
    std::string module = moduleNameOf(host(), tag);
    if (module == "index")
        refuseName(host(), nameOf(tag), "the index of all modules has that name, so no module can have it");
    const auto create = [&](std::string_view pattern) -> SourceFile& {
        return createNamed(host(), nameOf(tag), [&]() -> SourceFile& {
            return context_->project.sourceFile(fmt::format(fmt::runtime(pattern), module));
        });
    };
    addPart<ModuleIndex>(*context_, create("modules/{}/index"));
    addPart<ModuleRouter>(*context_, create("modules/{}/routes"), operations);
    return module;
}

void Plugin::addPackage() {
    addPart<PackageJson>(*context_, context_->project.packageJson());
    addPart<TypeScriptConfig>(*context_, context_->project.tsConfig());
}

void Plugin::addSchemaCopy() {
    const Configuration& configuration = context_->configuration;
    if (const auto path = pathOfSchemaCopy(configuration.openapiSchema, host().inputPath()))
        addPart<OpenAPISchemaFile>(context_->project, context_->project.createSourceFile(*path),
                                   host().inputPath());
}

void Plugin::generateCode() {
    openapi_generator::Plugin::generateCode();
    context_->project.saveAll();
    noteOperationsWithoutTag(operationsWithoutTag_, "route");
}

} // namespace specloom::openapi_generator::server_express
