#include "code_morph_java/source_file.h"

#include "code_morph_java/spring/names.h"

namespace specloom::code_morph::java {

void SourceFile::setPackage(std::string_view name) {
    checkPackageName(name);
    packageName_ = name;
}

void SourceFile::addImport(std::string_view qualifiedName) {
    if (imports_.contains(qualifiedName))
        return;
    const std::string_view package = packageOf(qualifiedName);
    if (package.empty())
        return;
    checkPackageName(package);
    checkClassName(classOf(qualifiedName));
    if (package != packageName_ && package != "java.lang")
        imports_.emplace(qualifiedName);
}

} // namespace specloom::code_morph::java
