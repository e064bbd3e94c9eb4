#pragma once

#include "openapi_generator/plugin.h"
#include "openapi_generator_client_fetch/plugin_context.h"

namespace specloom::openapi_generator::client_fetch {

/// A client in TypeScript over the fetch interface: src/actions.ts with a function for each operation,
/// src/utils.ts with what they call, src/index.ts, and src/types.ts and src/formatters.ts, which are empty.
/// It is a skeleton to be completed by hand. It has no configuration.
///
/// Throws, before anything is written, what code_morph::typescript::SourceFile::addFunction() throws for
/// two operations of one name, those without an operationId all being called "temp".
class Plugin final : public openapi_generator::Plugin {
  public:
    explicit Plugin(PluginRunner& host);

  protected:
    void configureParts() override;
    void generateCode() override;

  private:
    PluginContext context_;
};

} // namespace specloom::openapi_generator::client_fetch
