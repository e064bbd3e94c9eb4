#include "openapi_diff/diffs/discriminator_diff.h"

namespace specloom::openapi_diff {

void DiscriminatorDiff::diff(const openapi::Discriminator* source, const openapi::Discriminator* destination,
                             DiffContext& context) const {
    using openapi::Discriminator;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(DiscriminatorPropertyName, source, destination, &Discriminator::propertyName);
    diffPlainMaps(DiscriminatorMapping, source, destination, context, &Discriminator::mapping);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
