#pragma once

#include "openapi_generator/document_name.h"
#include "openapi_generator/plugin.h"
#include "openapi_generator_server_nestjs/plugin_context.h"

#include <functional> // std::less
#include <map>        // std::map
#include <optional>   // std::optional
#include <string>     // std::string

namespace specloom::openapi_generator::server_nestjs {

/// The folders of a server with NestJS: for each module src/NAME/NAME.module.ts and
/// src/NAME/NAME.controller.ts. The files are empty. It has no configuration.
///
/// The module of an operation is its first declared tag, else its operationId, else "default", in snake case.
/// A name that no module can have is refused as refuseName() tells, before anything is written.
class Plugin final : public openapi_generator::Plugin {
  public:
    explicit Plugin(PluginRunner& host);

  protected:
    void configureParts() override;
    void generateCode() override;

  private:
    /// Modules by name, with the first name in the document that led to each; none for "default".
    using Modules = std::map<std::string, std::optional<DocumentName>, std::less<>>;

    [[nodiscard]] Modules modules() const;
    void addModule(const std::string& name);

    PluginContext context_;
};

} // namespace specloom::openapi_generator::server_nestjs
