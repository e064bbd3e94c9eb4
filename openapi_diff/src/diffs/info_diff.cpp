#include "openapi_diff/diffs/info_diff.h"

#include "openapi_diff/diffs/contact_diff.h"
#include "openapi_diff/diffs/license_diff.h"

namespace specloom::openapi_diff {

void InfoDiff::diff(const openapi::Info* source, const openapi::Info* destination,
                    DiffContext& context) const {
    using openapi::Info;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(InfoTitle, source, destination, &Info::title);
    context.field(InfoSummary, source, destination, &Info::summary);
    context.field(InfoDescription, source, destination, &Info::description);
    context.field(InfoTermsOfService, source, destination, &Info::termsOfService);
    diffField<ContactDiff>(InfoContact, source, destination, context,
                           [](const Info& node) { return node.contact(); });
    diffField<LicenseDiff>(InfoLicense, source, destination, context,
                           [](const Info& node) { return node.license(); });
    context.field(InfoVersion, source, destination, &Info::version);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
