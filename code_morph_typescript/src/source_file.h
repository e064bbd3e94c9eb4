#pragma once

#include "code_morph/source_file.h"
#include "code_morph_typescript/function.h"
#include "code_morph_typescript/module_decl.h"
#include "foundation/text_tables.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::code_morph::typescript {

/// A TypeScript module: imports, functions and exports, written in this order. A file that is filled from a
/// template has none of them, and is what setText() says.
class SourceFile final : public base::SourceFile {
  public:
    using base::SourceFile::SourceFile;

    /// Adds a name to the import from `module`, which is made when it is the first. "*" is the whole module.
    void addImport(std::string_view module, std::string_view name);
    /// The same for exports of what another module has.
    void addExport(std::string_view module, std::string_view name);
    void addExportAll(std::string_view module) { addExport(module, "*"); }

    /// Adds a function, which lives as long as the file. Throws std::runtime_error with "Function already
    /// exists " and the name when there is one of that name.
    Function& addFunction(std::string_view name);

    [[nodiscard]] const std::vector<std::unique_ptr<ImportDecl>>& imports() const noexcept {
        return imports_;
    }
    [[nodiscard]] const std::vector<std::unique_ptr<ExportDecl>>& exports() const noexcept {
        return exports_;
    }
    [[nodiscard]] const std::vector<std::unique_ptr<Function>>& functions() const noexcept {
        return functions_;
    }

    /// Appends the module's source to `out`.
    void write(std::string& out) const override;

  private:
    std::vector<std::unique_ptr<ImportDecl>> imports_;
    std::vector<std::unique_ptr<ExportDecl>> exports_;
    std::vector<std::unique_ptr<Function>> functions_;
    TextSet functionNames_; // of functions_, of which a document can bring thousands
};

} // namespace specloom::code_morph::typescript
