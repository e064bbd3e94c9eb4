#include "openapi_diff/diffs/media_type_diff.h"

#include "openapi_diff/diffs/encoding_diff.h"
#include "openapi_diff/diffs/examples_diff.h"
#include "openapi_diff/diffs/schema_diff.h"

namespace specloom::openapi_diff {

void MediaTypeDiff::diff(const openapi::MediaType* source, const openapi::MediaType* destination,
                         DiffContext& context) const {
    using openapi::MediaType;
    using enum ConfigKey;
    context.mark(source, destination);
    diffField<SchemaDiff>(MediaTypeSchema, source, destination, context, &MediaType::schemaNode);
    diffMaps<EncodingDiff>(MediaTypeEncoding, source, destination, context, &MediaType::encodings);
    ExamplesDiff(MediaTypeExample, MediaTypeExamples).diff(source, destination, context);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
