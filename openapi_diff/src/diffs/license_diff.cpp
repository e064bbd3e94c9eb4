#include "openapi_diff/diffs/license_diff.h"

namespace specloom::openapi_diff {

void LicenseDiff::diff(const openapi::License* source, const openapi::License* destination,
                       DiffContext& context) const {
    using openapi::License;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(LicenseName, source, destination, &License::name);
    context.field(LicenseIdentifier, source, destination, &License::identifier);
    context.field(LicenseUrl, source, destination, &License::url);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
