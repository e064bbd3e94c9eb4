#pragma once

#include "code_morph_astro/project.h"
#include "jv/jv.h"
#include "openapi_generator/part.h"
#include "openapi_generator_doc_html/context.h"

#include <memory>      // std::unique_ptr
#include <string>      // std::string
#include <string_view> // std::string_view
#include <utility>     // std::move

namespace specloom::openapi_generator::doc_html {

using code_morph::astro::SourceFile;

/// A file of a site, which is a template filled with data in the language of a locale.
class Part : public openapi_generator::Part {
  public:
    void collectData() final;
    void generateCode() final;

  protected:
    /// All outlive the part. `templateName` is one of the folder templates/.
    Part(Context& context, SourceFile& file, std::string_view templateName, Locale locale = {})
        : context_(&context), file_(&file), templateName_(templateName), locale_(std::move(locale)) {}

    /// Adds what the template asks for. The locale of the part is in effect.
    virtual void collect(jv::JV& /*data*/) {}

    [[nodiscard]] Context& context() const noexcept { return *context_; }
    [[nodiscard]] const Configuration& configuration() const noexcept { return context_->configuration; }
    [[nodiscard]] Site& site() const noexcept { return *context_->site; }
    [[nodiscard]] Texts& texts() const noexcept { return site().texts; }
    [[nodiscard]] const Locale& locale() const noexcept { return locale_; }

    /// Appends a component of the site to "imports".
    void addImport(jv::JV& data, std::string_view name, std::string_view folder, std::string_view file) const;

  private:
    Context* context_;
    SourceFile* file_;
    std::string_view templateName_;
    Locale locale_;
    std::unique_ptr<jv::JV> data_;
};

} // namespace specloom::openapi_generator::doc_html
