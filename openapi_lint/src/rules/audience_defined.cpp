#include "openapi_lint/rules/audience_defined.h"

#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_options.h"

#include <algorithm> // std::find
#include <array>     // std::array

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr const char* audienceMissing = "API audience ({}) is missing";
constexpr const char* audienceInvalid = "API audience ({}) has invalid value ({})";

constexpr std::string_view audienceAttribute = "x-audience";
constexpr std::array<std::string_view, 4> audiences = {"internal-team", "internal-company", "partner",
                                                       "public"};

} // namespace

void AudienceDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    const openapi::Info& info = root.info();
    if (isDisabled(*this, &info, &root))
        return;
    const jv::JV* value = info.findExtension(audienceAttribute);
    if (value == nullptr) {
        report(context, fmt::format(audienceMissing, audienceAttribute), info);
        return;
    }
    const std::string_view audience = textOf(*value, audienceAttribute);
    if (std::find(audiences.begin(), audiences.end(), audience) == audiences.end())
        report(context, fmt::format(audienceInvalid, audienceAttribute, audience), info);
}

} // namespace specloom::openapi_lint
