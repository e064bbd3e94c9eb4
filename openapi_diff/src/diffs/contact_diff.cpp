#include "openapi_diff/diffs/contact_diff.h"

namespace specloom::openapi_diff {

void ContactDiff::diff(const openapi::Contact* source, const openapi::Contact* destination,
                       DiffContext& context) const {
    using openapi::Contact;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ContactName, source, destination, &Contact::name);
    context.field(ContactUrl, source, destination, &Contact::url);
    context.field(ContactEmail, source, destination, &Contact::email);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
