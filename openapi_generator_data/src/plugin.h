#pragma once

#include "jv/deser.h"
#include "jv_generator/generator.h"
#include "number/number.h"
#include "openapi_generator/plugin.h"

#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::data {

/// Makes sample values for one schema of the document, and writes them to one file: one value, or an array of
/// several. Warns of what looks like a mistake in the patterns that were used.
class Plugin final : public openapi_generator::Plugin {
  public:
    using openapi_generator::Plugin::Plugin;

    /// Besides those of every plugin, "pointer", "mimeType" and "quantity". Throws ConfigError "Invalid JSON
    /// pointer", "Invalid MIME type" and "Quantity is not a positive number".
    void setParam(std::string_view name, std::string_view value) override;
    /// Takes over what "/commands/generate/data" of a configuration says, as GeneratorConfig::readFrom()
    /// does.
    void configure(const jv::JV& root) override;
    /// Numbers from -10 to 10, and 0 to 10 for what is counted.
    void configureDefaults() override;

  protected:
    /// Throws std::runtime_error "Schema not found at {}" and "Node at {} is not a schema".
    void configureSelf() override;
    /// Throws what jv_generator::Generator does.
    void collectData() override;
    /// Makes the folder of the output where it is missing. Throws std::runtime_error "Cannot guess format for
    /// {}", and what the writers and the file system do.
    void generateCode() override;

  private:
    [[nodiscard]] std::string valuesOneByOne();
    [[nodiscard]] std::string valuesAtOnce(bool isSingle);

    std::string pointer_ = "/";
    std::string mimeType_ = "application/json"; ///< kept; the output's form is that of its extension
    number::Number quantity_ = 1;
    const openapi::Node* schema_ = nullptr;    ///< or a reference to it
    std::optional<jv::DocumentFormat> format_; ///< of the output, by its extension
    std::string output_;                       ///< its text
    jv_generator::Generator generator_;
};

} // namespace specloom::openapi_generator::data
