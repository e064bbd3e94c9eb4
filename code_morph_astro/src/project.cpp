#include "code_morph_astro/project.h"

#include <fmt/core.h>

namespace specloom::code_morph::astro {

SourceFile& Project::component(std::string_view name) {
    return createSourceFileBelow(fmt::format("src/components/{}.astro", name));
}

SourceFile& Project::page(std::string_view name) {
    return createSourceFileBelow(fmt::format("src/pages/{}.astro", name));
}

} // namespace specloom::code_morph::astro
