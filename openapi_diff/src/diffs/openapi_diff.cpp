#include "openapi_diff/diffs/openapi_diff.h"

#include "openapi_diff/component_comparisons.h"
#include "openapi_diff/diffs/components_diff.h"
#include "openapi_diff/diffs/external_documentation_diff.h"
#include "openapi_diff/diffs/info_diff.h"
#include "openapi_diff/diffs/path_item_diff.h"
#include "openapi_diff/diffs/paths_diff.h"
#include "openapi_diff/diffs/security_requirement_list_diff.h"
#include "openapi_diff/diffs/server_list_diff.h"
#include "openapi_diff/diffs/tag_list_diff.h"

namespace specloom::openapi_diff {
namespace {

using openapi::OpenAPI;

/// Trees that were read from equal values are equal, and documents that did not change are the usual case.
bool wereReadFromEqualValues(const OpenAPI& source, const OpenAPI& destination) {
    return source.source() != nullptr && destination.source() != nullptr &&
           source.source()->equals(*destination.source());
}

/// A field of entries, each of which is marked for itself.
template <typename Compare>
void diffEntries(ConfigKey key, const OpenAPI& source, const OpenAPI& destination, DiffContext& context,
                 Compare compareEntries) {
    const auto scope = context.enter(&source, &destination, key);
    compareEntries();
}

} // namespace

void OpenAPIDiff::diff(const OpenAPI* source, const OpenAPI* destination, DiffContext& context) const {
    using enum ConfigKey;
    if (wereReadFromEqualValues(*source, *destination))
        return;
    context.comparisons().compareComponents(source->components(), destination->components());

    context.field(OpenAPIOpenapi, source, destination, &OpenAPI::version);
    diffField<InfoDiff>(OpenAPIInfo, &source->info(), &destination->info(), context);
    context.field(OpenAPIJsonSchemaDialect, source, destination, &OpenAPI::jsonSchemaDialect);
    diffEntries(OpenAPIServers, *source, *destination, context, [&] {
        ServerListDiff(OpenAPIServers).diff(&source->servers(), &destination->servers(), context);
    });
    diffField<PathsDiff>(OpenAPIPaths, &source->paths(), &destination->paths(), context);
    diffEntries(OpenAPIWebhooks, *source, *destination, context, [&] {
        diffMaps<PathItemDiff>(OpenAPIWebhooks, source, destination, context, &OpenAPI::webhooks);
    });
    diffField<ComponentsDiff>(OpenAPIComponents, &source->components(), &destination->components(), context);
    diffEntries(OpenAPISecurity, *source, *destination, context, [&] {
        SecurityRequirementListDiff(OpenAPISecurity)
            .diff(&source->security(), &destination->security(), context);
    });
    diffEntries(OpenAPITags, *source, *destination, context,
                [&] { TagListDiff(OpenAPITags).diff(&source->tags(), &destination->tags(), context); });
    diffField<ExternalDocumentationDiff>(OpenAPIExternalDocs, source, destination, context,
                                         &OpenAPI::externalDocs);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
