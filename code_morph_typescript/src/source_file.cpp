#include "code_morph_typescript/source_file.h"

#include "foundation/message.h"

#include <algorithm> // std::find_if
#include <stdexcept> // std::runtime_error

namespace specloom::code_morph::typescript {
namespace {

/// The declaration of `module` in `declarations`, appended when there is none. Modules are few.
template <typename Decl>
Decl& declOf(std::string_view module, SourceFile& file, std::vector<std::unique_ptr<Decl>>& declarations) {
    const auto found = std::find_if(declarations.begin(), declarations.end(),
                                    [&](const auto& decl) { return decl->module() == module; });
    if (found != declarations.end())
        return **found;
    declarations.push_back(std::make_unique<Decl>(file, std::string(module)));
    return *declarations.back();
}

} // namespace

void SourceFile::addImport(std::string_view module, std::string_view name) {
    declOf(module, *this, imports_).addName(name);
}

void SourceFile::addExport(std::string_view module, std::string_view name) {
    declOf(module, *this, exports_).addName(name);
}

Function& SourceFile::addFunction(std::string_view name) {
    if (!functionNames_.emplace(name).second)
        throw std::runtime_error(formatMessage("Function already exists {}", name));
    functions_.push_back(std::make_unique<Function>(*this, std::string(name)));
    return *functions_.back();
}

void SourceFile::write(std::string& out) const {
    for (const auto& decl : imports_)
        decl->write(out);
    for (const auto& function : functions_) {
        if (function != functions_.front() || !imports_.empty())
            out += '\n';
        function->write(out);
    }
    for (const auto& decl : exports_)
        decl->write(out);
}

} // namespace specloom::code_morph::typescript
