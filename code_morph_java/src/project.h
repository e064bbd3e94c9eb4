#pragma once

#include "code_morph/project.h"
#include "code_morph_java/source_file.h"

#include <string_view> // std::string_view

namespace specloom::code_morph::java {

/// A Java project in the layout of Maven and Gradle.
class Project final : public base::ProjectOf<SourceFile> {
  public:
    using ProjectOf::ProjectOf;

    /// Adds the file of a class below src/main/java, with the package of that class. The name may hold names
    /// of a document; throws what createSourceFileBelow() and SourceFile::setPackage() throw.
    SourceFile& mainClass(std::string_view qualifiedName);
    /// The same below src/test/java.
    SourceFile& testClass(std::string_view qualifiedName);

  private:
    SourceFile& classBelow(std::string_view folder, std::string_view qualifiedName);
};

} // namespace specloom::code_morph::java
