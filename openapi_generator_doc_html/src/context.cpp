#include "openapi_generator_doc_html/context.h"

#include "code_morph_astro/escapes.h"
#include "foundation/escapes.h"
#include "openapi_generator_doc_html/doc_html_template.h"
#include "openapi_generator_doc_html/template_imports.h"

#include <memory> // std::unique_ptr
#include <span>   // std::span

#include <fmt/core.h>

namespace specloom::openapi_generator::doc_html {
namespace {

std::vector<templating::Function> functionsOf(const Context& context) {
    using Arguments = std::span<const std::string_view>;
    return {
        {"toAstroText", 1, [](Arguments arguments) { return code_morph::astro::toAstroText(arguments[0]); }},
        {"toAstroAttribute", 1,
         [](Arguments arguments) { return code_morph::astro::toAstroAttribute(arguments[0]); }},
        {"translate", 1, [&context](Arguments arguments) {
             return std::string(context.site->texts.translate(arguments[0]));
         }}};
}

/// What every template knows of the template package.
std::unique_ptr<jv::JV> templateData(const Configuration& configuration) {
    std::unique_ptr<jv::JV> data = jv::JV::newObject();
    jv::JV* imports = data->setObject("imports");
    for (const TemplateImport& component : templateImports())
        imports->setString(component.key, toJavaScriptLiteral(fmt::format(
                                              "{}/{}", configuration.templatePackage, component.path)));
    data->setString("packageName", configuration.templatePackage);
    data->setString("packageSpec", configuration.templateVersion);
    data->setString("packageDir", configuration.templateDir);
    return data;
}

} // namespace

Site::Site(const openapi::OpenAPI& document, const Configuration& configuration,
           const Translations& translations, templating::Forms& forms)
    : names(document), urls(configuration, names), texts(translations), usages(document),
      propertyLines(texts, urls, forms), usageEntries(names, texts, urls, forms),
      sampleLines(document, configuration, names, texts, forms) {
    if (configuration.operationGranularity != OperationGranularity::Separate)
        grouper.addCriterion(GroupingCriterion::Tag);
    grouper.group(document);
}

Context::Context(FileSystem& fileSystem)
    : PluginContextOf(fileSystem), templates({docHtmlTemplates()}, functionsOf(*this)) {}

void Context::begin(const openapi::OpenAPI& root, const Translations& translations) {
    document = &root;
    site.emplace(root, configuration, translations, forms);
    templates.setConstant("template", *templateData(configuration));
}

std::string Context::importPath(std::string_view folder, std::string_view name, const Locale& locale) const {
    return filePath("@components", localeSegment(configuration, locale), folder, name, true);
}

} // namespace specloom::openapi_generator::doc_html
