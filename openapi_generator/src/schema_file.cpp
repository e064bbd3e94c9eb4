#include "openapi_generator/schema_file.h"

#include "foundation/file_system.h"
#include "foundation/message.h"

#include <stdexcept> // std::runtime_error

namespace specloom::openapi_generator {

std::optional<SchemaCopy> readSchemaCopy(const configuration::Section& section) {
    const auto read = section.booleanOrText("openapi_schema", "openapi_schema must be a boolean or a string");
    if (!read)
        return std::nullopt;
    if (const bool* isCopied = std::get_if<bool>(&*read))
        return *isCopied;
    return std::string(std::get<std::string_view>(*read));
}

std::optional<std::string> pathOfSchemaCopy(const SchemaCopy& copy, std::string_view inputPath) {
    if (const auto* path = std::get_if<std::string>(&copy))
        return *path;
    if (!std::get<bool>(copy))
        return std::nullopt;
    return pathToUtf8(pathFromUtf8(inputPath).filename());
}

void OpenAPISchemaFile::generateCode() {
    std::string text = project_->fileSystem().readFile(inputPath_);
    if (text.empty()) // which no document is
        throw std::runtime_error(formatMessage("A pipe cannot be read again to be copied: {}", inputPath_));
    file_->setText(std::move(text));
}

} // namespace specloom::openapi_generator
