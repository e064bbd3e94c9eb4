#include "code_morph_typescript/project.h"

#include <fmt/core.h>

namespace specloom::code_morph::typescript {

SourceFile& Project::sourceFile(std::string_view name) {
    return createSourceFileBelow(fmt::format("src/{}.ts", name));
}

} // namespace specloom::code_morph::typescript
