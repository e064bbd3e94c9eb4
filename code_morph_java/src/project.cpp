#include "code_morph_java/project.h"

#include "code_morph_java/spring/names.h"

#include <algorithm> // std::replace
#include <string>    // std::string

#include <fmt/core.h>

namespace specloom::code_morph::java {

SourceFile& Project::mainClass(std::string_view qualifiedName) {
    return classBelow("src/main/java", qualifiedName);
}

SourceFile& Project::testClass(std::string_view qualifiedName) {
    return classBelow("src/test/java", qualifiedName);
}

SourceFile& Project::classBelow(std::string_view folder, std::string_view qualifiedName) {
    std::string path(qualifiedName);
    std::replace(path.begin(), path.end(), '.', '/');
    SourceFile& file = createSourceFileBelow(fmt::format("{}/{}.java", folder, path));
    file.setPackage(packageOf(qualifiedName));
    return file;
}

} // namespace specloom::code_morph::java
