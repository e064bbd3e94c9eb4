#pragma once

#include "code_morph_typescript/source_file.h"
#include "jv/jv.h"
#include "openapi/operation_ref.h"
#include "openapi_generator/part.h"
#include "openapi_generator_server_express/context.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

// The files of a generated server. Each part fills one.
namespace specloom::openapi_generator::server_express {

using code_morph::typescript::SourceFile;

/// A file that is a template filled with data.
class Part : public openapi_generator::Part {
  public:
    void generateCode() override;

  protected:
    /// All outlive the part. `templateName` is one of the folder templates/.
    Part(const Context& context, SourceFile& file, std::string_view templateName)
        : context_(&context), file_(&file), templateName_(templateName) {}

    [[nodiscard]] const Context& context() const noexcept { return *context_; }
    [[nodiscard]] jv::JV& data() noexcept { return *data_; }

  private:
    const Context* context_;
    SourceFile* file_;
    std::string_view templateName_;
    std::unique_ptr<jv::JV> data_ = jv::JV::newObject();
};

/// src/app.ts
class AppObject final : public Part {
  public:
    AppObject(const Context& context, SourceFile& file) : Part(context, file, "app_object.jinja") {}
};

/// src/modules/MODULE/index.ts
class ModuleIndex final : public Part {
  public:
    ModuleIndex(const Context& context, SourceFile& file) : Part(context, file, "module_index.jinja") {}
};

/// src/modules/MODULE/routes.ts: a route for each operation.
class ModuleRouter final : public Part {
  public:
    ModuleRouter(const Context& context, SourceFile& file, std::vector<openapi::OperationRef> operations)
        : Part(context, file, "module_router.jinja"), operations_(std::move(operations)) {}
    void collectData() override;

  private:
    std::vector<openapi::OperationRef> operations_;
};

/// src/modules/index.ts: imports all modules.
class ModulesIndex final : public Part {
  public:
    ModulesIndex(const Context& context, SourceFile& file, std::vector<std::string> modules)
        : Part(context, file, "modules_index.jinja"), modules_(std::move(modules)) {}
    void collectData() override;

  private:
    std::vector<std::string> modules_;
};

/// package.json
class PackageJson final : public Part {
  public:
    PackageJson(const Context& context, SourceFile& file) : Part(context, file, "package_json.jinja") {}
    void collectData() override;
};

/// src/server.ts
class ServerObject final : public Part {
  public:
    ServerObject(const Context& context, SourceFile& file) : Part(context, file, "server_object.jinja") {}
};

/// tsconfig.json
class TypeScriptConfig final : public Part {
  public:
    TypeScriptConfig(const Context& context, SourceFile& file)
        : Part(context, file, "typescript_config.jinja") {}
};

} // namespace specloom::openapi_generator::server_express
