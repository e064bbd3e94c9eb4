#include "openapi_diff/diffs/schema_or_media_type_diff.h"

#include "openapi/media_type.h"

namespace specloom::openapi_diff {

void SchemaOrMediaTypeDiff::diff(const openapi::SchemaOrContent* source,
                                 const openapi::SchemaOrContent* destination, DiffContext& context) const {
    using openapi::SchemaOrContent;
    diffField<SchemaDiff>(schema_, childOf(source, &SchemaOrContent::schemaNode),
                          childOf(destination, &SchemaOrContent::schemaNode), context);

    const openapi::MediaType* before = childOf(source, &SchemaOrContent::mediaType);
    const openapi::MediaType* after = childOf(destination, &SchemaOrContent::mediaType);
    const auto diffEntry = [&](const openapi::MediaType* a, const openapi::MediaType* b,
                               std::string_view name) {
        const auto scope = context.enterKey(a, b, content_, name);
        MediaTypeDiff().diff(a, b, context);
    };
    if (before != nullptr && after != nullptr && source->mediaTypeName() == destination->mediaTypeName())
        return diffEntry(before, after, destination->mediaTypeName());
    if (after != nullptr)
        diffEntry(nullptr, after, destination->mediaTypeName());
    if (before != nullptr)
        diffEntry(before, nullptr, source->mediaTypeName());
}

} // namespace specloom::openapi_diff
