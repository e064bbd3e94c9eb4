#pragma once

#include "openapi_generator_doc_html/part.h"

// What makes a project of the components and pages.
namespace specloom::openapi_generator::doc_html {

/// package.json
class PackageJson final : public Part {
  public:
    PackageJson(Context& context, SourceFile& file) : Part(context, file, "package_json.jinja") {}

  protected:
    void collect(jv::JV& data) override;
};

/// tsconfig.json
class TypeScriptConfig final : public Part {
  public:
    TypeScriptConfig(Context& context, SourceFile& file) : Part(context, file, "typescript_config.jinja") {}
};

/// astro.config.mjs
class AstroConfig final : public Part {
  public:
    AstroConfig(Context& context, SourceFile& file) : Part(context, file, "astro_config.jinja") {}

  protected:
    void collect(jv::JV& data) override;
};

/// tailwind.config.cjs
class TailwindConfig final : public Part {
  public:
    TailwindConfig(Context& context, SourceFile& file) : Part(context, file, "tailwind_config.jinja") {}
};

/// src/middleware/index.ts: tells pages the default locale.
class I18nMiddleware final : public Part {
  public:
    I18nMiddleware(Context& context, SourceFile& file) : Part(context, file, "i18n_middleware.jinja") {}

  protected:
    void collect(jv::JV& data) override;
};

/// The page from which Astro leads to the default locale, when that has a folder like the others.
class MultiLocaleIndexPage final : public Part {
  public:
    MultiLocaleIndexPage(Context& context, SourceFile& file)
        : Part(context, file, "multi_locale_index_page.jinja") {}
};

} // namespace specloom::openapi_generator::doc_html
