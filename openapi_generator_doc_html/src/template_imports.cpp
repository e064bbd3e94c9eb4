#include "openapi_generator_doc_html/template_imports.h"

#include <array> // std::to_array

namespace specloom::openapi_generator::doc_html {
namespace {

constexpr auto templateImportTable = std::to_array<TemplateImport>({
    {"astroConfig", "astro.config.mjs"},
    {"CodeBlock", "src/components/code/CodeBlock.astro"},
    {"Layout", "src/layouts/Layout.astro"},
    {"Header", "src/components/Header.astro"},
    {"Group", "src/components/Group.astro"},
    {"Operation", "src/components/Operation.astro"},
    {"Resource", "src/components/Resource.astro"},
    {"ExternalLink", "src/components/ExternalLink.astro"},
    {"SearchForm", "src/components/search/SearchForm.astro"},
    {"SearchResults", "src/components/search/SearchResults.astro"},
    {"SearchEntry", "src/components/search/SearchEntry.astro"},
    {"SecurityRequirements", "src/components/operation/SecurityRequirements.astro"},
    {"SecurityRequirement", "src/components/operation/SecurityRequirement.astro"},
    {"Parameter", "src/components/operation/Parameter.astro"},
    {"RequestBody", "src/components/operation/RequestBody.astro"},
    {"Response", "src/components/operation/Response.astro"},
    {"Responses", "src/components/operation/Responses.astro"},
    {"RequestExample", "src/components/operation/RequestExample.astro"},
    {"RequestExamples", "src/components/operation/RequestExamples.astro"},
    {"ResponseExamples", "src/components/operation/ResponseExamples.astro"},
    {"ResponseSchemas", "src/components/operation/ResponseSchemas.astro"},
    {"OperationUsageList", "src/components/operation/UsageList.astro"},
    {"OperationUsageEntry", "src/components/operation/UsageEntry.astro"},
    {"Property", "src/components/schema/Property.astro"},
    {"ResourceUsageList", "src/components/schema/UsageList.astro"},
    {"ResourceUsageEntry", "src/components/schema/UsageEntry.astro"},
    {"Sidebar", "src/components/Sidebar.astro"},
    {"OverviewItem", "src/components/sidebar/OverviewItem.astro"},
    {"OperationItem", "src/components/sidebar/OperationItem.astro"},
    {"OperationItemGroup", "src/components/sidebar/OperationItemGroup.astro"},
    {"OperationsWrapper", "src/components/sidebar/OperationsWrapper.astro"},
    {"ResourceItem", "src/components/sidebar/ResourceItem.astro"},
    {"ResourcesWrapper", "src/components/sidebar/ResourcesWrapper.astro"},
    {"CustomItem", "src/components/sidebar/CustomItem.astro"},
    {"CustomItemGroup", "src/components/sidebar/CustomItemGroup.astro"},
    {"Overview", "src/components/Overview.astro"},
    {"Contact", "src/components/overview/Contact.astro"},
    {"License", "src/components/overview/License.astro"},
    {"Server", "src/components/overview/Server.astro"},
    {"Tag", "src/components/overview/Tag.astro"},
    {"SecurityScheme", "src/components/overview/SecurityScheme.astro"},
});

} // namespace

std::span<const TemplateImport> templateImports() noexcept {
    return templateImportTable;
}

} // namespace specloom::openapi_generator::doc_html
