#include "openapi_diff/diffs/header_diff.h"

#include "openapi_diff/diffs/examples_diff.h"
#include "openapi_diff/diffs/schema_or_media_type_diff.h"

namespace specloom::openapi_diff {

void HeaderDiff::diff(const openapi::Header* source, const openapi::Header* destination,
                      DiffContext& context) const {
    using openapi::Header;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(HeaderDescription, source, destination, &Header::description);
    context.field(HeaderRequired, source, destination,
                  [](const Header& header) { return header.required().value_or(false); });
    context.field(HeaderDeprecated, source, destination, &Header::deprecated);
    context.field(HeaderAllowEmptyValue, source, destination, &Header::allowEmptyValue);
    context.field(HeaderExplode, source, destination, &Header::explode);
    context.field(HeaderAllowReserved, source, destination, &Header::allowReserved);
    SchemaOrMediaTypeDiff(HeaderSchema, HeaderContent).diff(source, destination, context);
    ExamplesDiff(HeaderExample, HeaderExamples).diff(source, destination, context);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
