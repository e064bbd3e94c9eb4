#include "openapi_diff/diffs/encoding_diff.h"

#include "openapi_diff/diffs/header_diff.h"
#include "openapi_diff/diffs/style_text.h"

namespace specloom::openapi_diff {

void EncodingDiff::diff(const openapi::Encoding* source, const openapi::Encoding* destination,
                        DiffContext& context) const {
    using openapi::Encoding;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(EncodingContentType, source, destination, &Encoding::contentType);
    diffMaps<HeaderDiff>(EncodingHeaders, source, destination, context, &Encoding::headers);
    context.field(EncodingStyle, source, destination, styleOf<Encoding>);
    context.field(EncodingExplode, source, destination, &Encoding::explode);
    context.field(EncodingAllowReserved, source, destination, &Encoding::allowReserved);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
