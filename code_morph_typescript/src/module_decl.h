#pragma once

#include "code_morph/node.h"
#include "foundation/text_tables.h"

#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <vector>      // std::vector

namespace specloom::code_morph::typescript {

/// What imports and exports of names of another module have in common.
class ModuleDecl : public base::Node {
  public:
    ModuleDecl(Node& parent, std::string module) : Node(&parent), module_(std::move(module)) {}

    /// Where the names come from, as the source gives it between quotes.
    [[nodiscard]] const std::string& module() const noexcept { return module_; }
    /// In the order in which they were added.
    [[nodiscard]] const std::vector<std::string>& names() const noexcept { return names_; }

    /// "*" stands for the whole module. Does nothing for a name that is there already.
    void addName(std::string_view name);

  protected:
    /// Appends the declaration as one line that begins with `keyword`. With "*" among the names it is for the
    /// whole module. Otherwise the last of two and more names is left out, on purpose.
    void writeLine(std::string_view keyword, std::string& out) const;

  private:
    std::string module_;
    std::vector<std::string> names_;
    TextSet known_; // the same names: generated modules can have thousands
};

class ImportDecl final : public ModuleDecl {
  public:
    using ModuleDecl::ModuleDecl;
    void write(std::string& out) const override { writeLine("import ", out); }
};

class ExportDecl final : public ModuleDecl {
  public:
    using ModuleDecl::ModuleDecl;
    void write(std::string& out) const override { writeLine("export ", out); }
};

} // namespace specloom::code_morph::typescript
