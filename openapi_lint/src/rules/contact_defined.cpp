#include "openapi_lint/rules/contact_defined.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"

namespace specloom::openapi_lint {
namespace {

constexpr const char* contactMissing = "Contact object is missing";
constexpr const char* nameMissing = "Contact name is missing or empty";
constexpr const char* emailMissing = "Contact email is missing";
constexpr const char* urlMissing = "Contact URL is missing";

} // namespace

void ContactDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    const openapi::Info& info = root.info();
    const openapi::Contact* contact = info.contact();
    if (isDisabled(*this, contact, &info, &root))
        return;
    if (contact == nullptr) {
        report(context, contactMissing, info);
        return;
    }
    if (contact->name().value_or("").empty())
        report(context, nameMissing, *contact);
    if (contact->email().value_or("").empty())
        report(context, emailMissing, *contact);
    if (contact->url().value_or("").empty())
        report(context, urlMissing, *contact);
}

} // namespace specloom::openapi_lint
