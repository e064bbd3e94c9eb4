#include "openapi_generator_doc_html/pages.h"

#include "code_morph_astro/attributes.h"
#include "foundation/language_names.h"
#include "openapi_generator_doc_html/component_kinds.h"

#include <array>   // std::array
#include <utility> // std::pair

namespace specloom::openapi_generator::doc_html {

using code_morph::astro::Attributes;
using code_morph::astro::ObjectLiteral;

void Page::collect(jv::JV& data) {
    addImport(data, "Sidebar", {}, "Sidebar");
    setAttributes(*data.setObject("html"));
    if (configuration().locales.size() > 1)
        data.setString("localeSelectorData", localeSelectorData());
    collectBody(data);
}

void Page::setAttributes(jv::JV& html) const {
    const Configuration& options = configuration();
    const std::string title = texts().translate(title_, nameInTitle());
    html.setString("title", options.htmlTitlePrefix ? *options.htmlTitlePrefix + " - " + title : title);
    const std::pair<std::string_view, const std::optional<std::string>&> others[] = {
        {"lang", locale()},
        {"author", options.htmlAuthor},
        {"description", options.htmlDescription},
        {"generator", options.htmlGenerator},
        {"keywords", options.htmlKeywords}};
    for (const auto& [name, text] : others)
        if (text)
            html.setString(name, *text);
}

std::string Page::localeSelectorData() const {
    std::vector<std::string> options;
    for (const std::string& other : configuration().locales)
        options.push_back(ObjectLiteral()
                              .text("value", other)
                              .text("href", urlIn(other))
                              .text("label", languageName(other).value_or(other))
                              .take());
    return ObjectLiteral().literal("options", code_morph::astro::joinLiterals(options)).take();
}

std::string Page::importOperation(const openapi::OperationRef& ref, jv::JV& data) const {
    const ArtefactNames& names = site().names.of(ref);
    std::string symbol = operationComponent.symbolOf(names);
    addImport(data, symbol, operationComponent.folder, names.key);
    return symbol;
}

std::string Page::importResource(std::string_view schema, jv::JV& data) const {
    const ArtefactNames& names = site().names.ofSchema(schema);
    std::string symbol = resourceComponent.symbolOf(names);
    addImport(data, symbol, resourceComponent.folder, names.key);
    return symbol;
}

void Page::importOverview(jv::JV& data) const {
    addImport(data, "Overview", {}, "Overview");
}

void Page::setOperations(const std::vector<openapi::OperationRef>& operations, jv::JV& target,
                         jv::JV& data) const {
    jv::JV* symbols = target.setArray("operations");
    for (const openapi::OperationRef& ref : operations)
        symbols->appendString(importOperation(ref, data));
}

void Page::setGroups(jv::JV& data) const {
    jv::JV* groups = data.setArray("operationGroups");
    for (const auto& [tag, operations] : site().grouper.groups()) {
        jv::JV* group = groups->appendObject();
        group->setString("id", site().names.ofTag(tag).anchor);
        group->setString("name", texts().translate(tag));
        setOperations(operations, *group, data);
    }
    setOperations(site().grouper.ungrouped(), data, data);
}

void Page::setResources(jv::JV& data) const {
    jv::JV* symbols = data.setArray("resources");
    for (const auto& entry : context().document->components().schemas())
        symbols->appendString(importResource(entry.name(), data));
}

std::string OverviewPage::urlIn(const Locale& locale) const {
    return site().urls.ofOverview(locale);
}

std::string OperationPage::urlIn(const Locale& locale) const {
    return site().urls.ofOperation(ref_, locale);
}

void OperationPage::collectBody(jv::JV& data) {
    data.setString("operationName", importOperation(ref_, data));
}

std::string OperationGroupPage::urlIn(const Locale& locale) const {
    return site().urls.ofTag(tag_, locale);
}

std::string OperationIndexPage::urlIn(const Locale& locale) const {
    return site().urls.ofPage("operations", locale);
}

std::string UngroupedOperationsPage::urlIn(const Locale& locale) const {
    return site().urls.ofPage("operations", locale);
}

std::string ResourcePage::urlIn(const Locale& locale) const {
    return site().urls.ofResource(schema_, locale);
}

void ResourcePage::collectBody(jv::JV& data) {
    data.setString("resourceName", importResource(schema_, data));
}

std::string ResourceIndexPage::urlIn(const Locale& locale) const {
    return site().urls.ofPage("resources", locale);
}

std::string SearchPage::urlIn(const Locale& locale) const {
    return site().urls.ofPage("search", locale);
}

void SearchPage::collectBody(jv::JV& data) {
    std::array<bool, openapi::operationKeys.size()> isUsed{};
    jv::JV* entries = data.setArray("operations");
    for (const openapi::OperationRef& ref : site().names.operations()) {
        isUsed[static_cast<std::size_t>(ref.method)] = true;
        entries->appendString(Attributes()
                                  .text("method", openapi::operationKey(ref.method))
                                  .text("url", ref.path)
                                  .text("href", site().urls.ofOperation(ref, locale()))
                                  .textIf("summary", texts().translateIf(ref.operation->summary()))
                                  .view());
    }
    std::vector<std::string> methods;
    for (std::size_t method = 0; method < isUsed.size(); ++method)
        if (isUsed[method])
            methods.emplace_back(openapi::operationKeys[method]);
    data.setString("httpMethods", code_morph::astro::toArrayLiteral(methods));
}

std::string SinglePage::urlIn(const Locale& locale) const {
    return site().urls.ofOverview(locale);
}

void SinglePage::collectBody(jv::JV& data) {
    importOverview(data);
    setGroups(data);
    setResources(data);
}

std::string ChangelogPage::urlIn(const Locale& locale) const {
    return site().urls.ofPage("changelog", locale);
}

} // namespace specloom::openapi_generator::doc_html
