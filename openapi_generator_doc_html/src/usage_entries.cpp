#include "openapi_generator_doc_html/usage_entries.h"

#include "code_morph_astro/attributes.h"
#include "openapi_generator_doc_html/doc_html_template.h"

#include <utility> // std::move

#include <fmt/core.h>

namespace specloom::openapi_generator::doc_html {

using code_morph::astro::Attributes;

UsageEntries::UsageEntries(const DocumentNames& names, const Texts& texts, const Urls& urls)
    : names_(&names), texts_(&texts), urls_(&urls),
      schemaEntry_(docHtmlTemplate("operation_usage_entry.jinja"), {"attributes"}),
      operationEntry_(docHtmlTemplate("resource_usage_entry.jinja"), {"attributes"}),
      operations_(names.operations().size()) {}

const std::string& UsageEntries::ofSchema(std::string_view name) {
    enterLocale();
    const auto found = schemas_.find(name);
    if (found != schemas_.end())
        return found->second;
    std::string entry;
    schemaEntry_.append(
        {Attributes().text("href", urls_->ofResource(name, locale_)).text("label", name).view()}, entry);
    return schemas_.emplace(name, std::move(entry)).first->second;
}

const std::string& UsageEntries::ofOperation(const openapi::OperationRef& ref) {
    enterLocale();
    std::string& entry = operations_[names_->indexOf(ref)];
    if (!entry.empty())
        return entry;
    const auto summary = texts_->translateIf(ref.operation->summary());
    const std::string label = summary.value_or("").empty()
                                  ? fmt::format("{} {}", openapi::operationKey(ref.method), ref.path)
                                  : std::string(*summary);
    operationEntry_.append(
        {Attributes().text("href", urls_->ofOperation(ref, locale_)).text("label", label).view()}, entry);
    return entry;
}

void UsageEntries::enterLocale() {
    if (locale_ == texts_->locale())
        return;
    locale_ = texts_->locale();
    schemas_.clear();
    operations_.assign(operations_.size(), {});
}

} // namespace specloom::openapi_generator::doc_html
