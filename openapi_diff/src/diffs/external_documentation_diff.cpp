#include "openapi_diff/diffs/external_documentation_diff.h"

namespace specloom::openapi_diff {

void ExternalDocumentationDiff::diff(const openapi::ExternalDocumentation* source,
                                     const openapi::ExternalDocumentation* destination,
                                     DiffContext& context) const {
    using openapi::ExternalDocumentation;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ExternalDocumentationDescription, source, destination, &ExternalDocumentation::description);
    context.field(ExternalDocumentationUrl, source, destination, &ExternalDocumentation::url);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
