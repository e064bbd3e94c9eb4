#pragma once

#include "code_morph/project.h"
#include "code_morph_typescript/source_file.h"

#include <string_view> // std::string_view

namespace specloom::code_morph::typescript {

/// A TypeScript package.
class Project final : public base::ProjectOf<SourceFile> {
  public:
    using ProjectOf::ProjectOf;

    /// Adds the module src/NAME.ts. `name` may have folders and names of a document in it; throws what
    /// createSourceFileBelow() throws.
    SourceFile& sourceFile(std::string_view name);

    // To be asked for once each, as namedFile() tells.
    SourceFile& packageJson() { return namedFile("package.json"); }
    SourceFile& tsConfig() { return namedFile("tsconfig.json"); }
};

} // namespace specloom::code_morph::typescript
