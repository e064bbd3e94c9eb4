#include "openapi_generator_server_nestjs/plugin.h"

#include "openapi/operation_ref.h"
#include "openapi_generator/plugin_runner.h"
#include "openapi_generator_server_nestjs/parts.h"

#include <fmt/core.h>

namespace specloom::openapi_generator::server_nestjs {
namespace {

/// What the operation's module is called after; none for an operation with neither tag nor operationId.
std::optional<DocumentName> moduleSource(const openapi::Operation& operation) {
    if (!operation.tags().empty())
        return nameOf(*operation.tags().front());
    if (const std::optional<std::string_view> id = operation.operationId())
        return DocumentName{.kind = "Operation id", .name = *id, .node = &operation, .member = "operationId"};
    return std::nullopt;
}

} // namespace

Plugin::Plugin(PluginRunner& host) : openapi_generator::Plugin(host), context_(host.fileSystem()) {}

void Plugin::configureParts() {
    context_.document = document();
    context_.project.setRootPath(outputPath());
    for (const auto& module : modules()) {
        const auto create = [&] { addModule(module.first); };
        if (const std::optional<DocumentName>& source = module.second)
            createNamed(host(), *source, create);
        else
            create();
    }
}

Plugin::Modules Plugin::modules() const {
    Modules modules;
    for (const openapi::OperationRef& ref : openapi::operationsOf(*context_.document)) {
        const std::optional<DocumentName> source = moduleSource(*ref.operation);
        modules.emplace(source ? moduleNameOf(host(), *source) : "default", source);
    }
    return modules;
}

void Plugin::addModule(const std::string& name) {
    const auto create = [&](std::string_view kind) -> auto& {
        return context_.project.sourceFile(fmt::format("{0}/{0}.{1}", name, kind));
    };
    addPart<ModuleFile>(context_, create("module"));
    addPart<Controller>(context_, create("controller"));
}

void Plugin::generateCode() {
    openapi_generator::Plugin::generateCode();
    context_.project.saveAll();
}

} // namespace specloom::openapi_generator::server_nestjs
