#pragma once

#include "code_morph_java/source_file.h"
#include "openapi/schema.h"

#include <cstddef>     // std::size_t
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator::server_spring {

/// An annotation with its arguments, as it stands in the code, and the qualified name of its class.
struct Constraint {
    std::string text;
    std::string_view import;
};

/// The constraints that the code shows, with a blank between them.
[[nodiscard]] std::string textOf(const std::vector<Constraint>& constraints);

/// What Java makes of a schema.
struct SchemaTypeInfo {
    static constexpr std::size_t noRecord = static_cast<std::size_t>(-1);

    /// "Object", "String", "Boolean", "Integer", "Double", or the qualified name of a class. Of a list that
    /// of the innermost elements.
    std::string typeName = "Object";
    const openapi::Schema* schema = nullptr;
    std::string_view containerClass; ///< "java.util.List" for a list, otherwise empty
    std::string containerText;       ///< a list as it stands in the code
    std::size_t record = noRecord;   ///< the number of the record that stands for it, in their order
    std::vector<Constraint> annotations;

    [[nodiscard]] bool isList() const noexcept { return !containerClass.empty(); }
    [[nodiscard]] bool isObject() const noexcept { return typeName == "Object" && !isList(); }
    [[nodiscard]] bool isSameType(const SchemaTypeInfo& other) const noexcept {
        return typeName == other.typeName && containerText == other.containerText;
    }
    /// As it stands in the code.
    [[nodiscard]] std::string_view text() const noexcept;
    /// Imports what text() names.
    void addImports(code_morph::java::SourceFile& file) const;
};

} // namespace specloom::openapi_generator::server_spring
