#include "openapi_diff/diffs/tag_diff.h"

#include "openapi_diff/diffs/external_documentation_diff.h"

namespace specloom::openapi_diff {

void TagDiff::diff(const openapi::Tag* source, const openapi::Tag* destination, DiffContext& context) const {
    using openapi::Tag;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(TagName, source, destination, &Tag::name);
    context.field(TagDescription, source, destination, &Tag::description);
    diffField<ExternalDocumentationDiff>(TagExternalDocs, source, destination, context,
                                         [](const Tag& node) { return node.externalDocs(); });
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
