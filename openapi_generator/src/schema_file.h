#pragma once

#include "code_morph/project.h"
#include "configuration/section.h"
#include "openapi_generator/part.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move
#include <variant>     // std::variant

// A copy of the document among the files that are generated.
namespace specloom::openapi_generator {

/// Whether the document is copied below its own name, or the path of the copy, which is relative to the
/// output.
using SchemaCopy = std::variant<bool, std::string>;

/// The key "openapi_schema"; nothing when it is not there. Throws ConfigError "openapi_schema must be a
/// boolean or a string".
[[nodiscard]] std::optional<SchemaCopy> readSchemaCopy(const configuration::Section& section);

/// The path of the copy of the document at `inputPath`; nothing when none is asked for.
[[nodiscard]] std::optional<std::string> pathOfSchemaCopy(const SchemaCopy& copy, std::string_view inputPath);

/// A copy of the document, byte for byte. Throws std::runtime_error with "A pipe cannot be read again to be
/// copied: {}" and the path when the document came from one.
class OpenAPISchemaFile final : public Part {
  public:
    /// The project and its file outlive the part.
    OpenAPISchemaFile(const code_morph::base::Project& project, code_morph::base::SourceFile& file,
                      std::string inputPath)
        : project_(&project), file_(&file), inputPath_(std::move(inputPath)) {}
    void generateCode() override;

  private:
    const code_morph::base::Project* project_;
    code_morph::base::SourceFile* file_;
    std::string inputPath_;
};

} // namespace specloom::openapi_generator
