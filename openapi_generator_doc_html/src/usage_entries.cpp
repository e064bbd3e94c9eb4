#include "openapi_generator_doc_html/usage_entries.h"

#include "code_morph_astro/attributes.h"

#include <utility> // std::move

#include <fmt/core.h>

namespace specloom::openapi_generator::doc_html {

using code_morph::astro::Attributes;

UsageEntries::UsageEntries(const DocumentNames& names, const Texts& texts, const Urls& urls,
                           templating::Forms& forms)
    : names_(&names), texts_(&texts), urls_(&urls), forms_(&forms), operations_(names.operations().size()) {}

const std::string& UsageEntries::ofSchema(std::string_view name) {
    enterLocale();
    const auto found = schemas_.find(name);
    if (found != schemas_.end())
        return found->second;
    std::string entry = forms_->fill(
        "operation_usage_entry.jinja",
        {{"attributes",
          Attributes().text("href", urls_->ofResource(name, locale_)).text("label", name).take()}});
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
    return entry = forms_->fill(
               "resource_usage_entry.jinja",
               {{"attributes",
                 Attributes().text("href", urls_->ofOperation(ref, locale_)).text("label", label).take()}});
}

void UsageEntries::enterLocale() {
    if (locale_ == texts_->locale())
        return;
    locale_ = texts_->locale();
    schemas_.clear();
    operations_.assign(operations_.size(), {});
}

} // namespace specloom::openapi_generator::doc_html
