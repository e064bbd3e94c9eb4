#include "code_morph_typescript/module_decl.h"

#include "foundation/escapes.h"

#include <algorithm> // std::max
#include <cstddef>   // std::size_t

#include <fmt/format.h> // fmt::join

namespace specloom::code_morph::typescript {
namespace {

constexpr std::string_view wholeModule = "*";

/// One name, or all but the last.
std::string nameList(const std::vector<std::string>& names) {
    const std::size_t count = names.size() == 1 ? 1 : std::max<std::size_t>(names.size(), 1) - 1;
    return fmt::format("{}",
                       fmt::join(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(count), ", "));
}

} // namespace

void ModuleDecl::addName(std::string_view name) {
    if (known_.emplace(name).second)
        names_.emplace_back(name);
}

void ModuleDecl::writeLine(std::string_view keyword, std::string& out) const {
    out += keyword;
    if (known_.contains(wholeModule))
        out += wholeModule;
    else
        ((out += "{ ") += nameList(names_)) += " }";
    ((out += " from ") += toJsonLiteral(module_)) += ";\n";
}

} // namespace specloom::code_morph::typescript
