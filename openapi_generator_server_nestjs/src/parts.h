#pragma once

#include "code_morph_typescript/source_file.h"
#include "openapi_generator/part.h"
#include "openapi_generator_server_nestjs/plugin_context.h"

namespace specloom::openapi_generator::server_nestjs {

/// A file of a module of the server.
class Part : public openapi_generator::Part {
  public:
    /// Both outlive the part.
    Part(PluginContext& context, code_morph::typescript::SourceFile& file) noexcept
        : context_(&context), file_(&file) {}

  protected:
    [[nodiscard]] PluginContext& context() const noexcept { return *context_; }
    [[nodiscard]] code_morph::typescript::SourceFile& file() const noexcept { return *file_; }

  private:
    PluginContext* context_;
    code_morph::typescript::SourceFile* file_;
};

// What stands in these files is not decided: they are empty, on purpose, and these are the places to fill
// them.

class Controller final : public Part {
  public:
    using Part::Part;
    void collectData() override;
    void generateCode() override;
};

class ModuleFile final : public Part {
  public:
    using Part::Part;
    void collectData() override;
    void generateCode() override;
};

} // namespace specloom::openapi_generator::server_nestjs
