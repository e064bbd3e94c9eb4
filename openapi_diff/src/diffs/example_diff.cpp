#include "openapi_diff/diffs/example_diff.h"

namespace specloom::openapi_diff {

void ExampleDiff::diff(const openapi::Example* source, const openapi::Example* destination,
                       DiffContext& context) const {
    using openapi::Example;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ExampleSummary, source, destination, &Example::summary);
    context.field(ExampleDescription, source, destination, &Example::description);
    context.field(ExampleValue, source, destination, &Example::value);
    context.field(ExampleExternalValue, source, destination, &Example::externalValue);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
