#pragma once

#include "openapi/operation_ref.h"
#include "openapi_generator/plugin.h"

#include <cstddef>     // std::size_t
#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::server_express {

struct Context;

/// Makes the skeleton of an Express server in TypeScript: a module for each declared tag, whose routes answer
/// a fixed body. Operations without a declared tag have no route, and the run says how many.
class Plugin final : public openapi_generator::Plugin {
  public:
    explicit Plugin(PluginRunner& host);
    ~Plugin() override;

    void configure(const jv::JV& root) override;

  protected:
    void configureSelf() override;
    /// Throws std::runtime_error as refuseName() does for a tag of which no module can be made, and what
    /// Project::createSourceFile() throws.
    void configureParts() override;
    void generateCode() override;

  private:
    void addModules();
    [[nodiscard]] std::string addModule(const std::vector<openapi::OperationRef>& operations);
    void addPackage();
    void addSchemaCopy();

    std::unique_ptr<Context> context_;
    std::size_t operationsWithoutTag_ = 0;
};

} // namespace specloom::openapi_generator::server_express
