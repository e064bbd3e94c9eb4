#pragma once

#include "code_morph/source_file.h"

#include <functional>  // std::less
#include <set>         // std::set
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::code_morph::java {

/// A Java source file with one class. Its text comes from a template; the file knows its package and what it
/// imports.
class SourceFile final : public base::SourceFile {
  public:
    using base::SourceFile::SourceFile;

    [[nodiscard]] const std::string& packageName() const noexcept { return packageName_; }
    /// Throws what checkPackageName() throws.
    void setPackage(std::string_view name);

    using Imports = std::set<std::string, std::less<>>;
    /// Qualified names of classes, in byte-wise order.
    [[nodiscard]] const Imports& imports() const noexcept { return imports_; }
    /// Imports a class, unless its name is empty or without a package, or it is in sight without that: a
    /// class of this package or of java.lang. Throws what checkPackageName() and checkClassName() throw.
    void addImport(std::string_view qualifiedName);

  private:
    std::string packageName_;
    Imports imports_;
};

} // namespace specloom::code_morph::java
