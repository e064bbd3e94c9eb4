#pragma once

#include "code_morph/project.h"

#include <string_view> // std::string_view

namespace specloom::code_morph::astro {

/// A file of an Astro project. A template makes its text as a whole.
class SourceFile final : public base::SourceFile {
  public:
    using base::SourceFile::SourceFile;
};

/// An Astro project.
class Project final : public base::ProjectOf<SourceFile> {
  public:
    using ProjectOf::ProjectOf;

    // A name may have folders and names of a document in it. Both throw what createSourceFileBelow() throws.

    /// Adds the component src/components/NAME.astro.
    SourceFile& component(std::string_view name);
    /// Adds the page src/pages/NAME.astro.
    SourceFile& page(std::string_view name);

    // To be asked for once each, as namedFile() tells.
    SourceFile& astroConfig() { return namedFile("astro.config.mjs"); }
    SourceFile& packageJson() { return namedFile("package.json"); }
    SourceFile& tailwindConfig() { return namedFile("tailwind.config.cjs"); }
    SourceFile& tsConfig() { return namedFile("tsconfig.json"); }
};

} // namespace specloom::code_morph::astro
