#include "openapi_lint/naming_rule.h"

#include "openapi_lint/rule_options.h"

#include <fmt/format.h>

namespace specloom::openapi_lint {

void NamingRule::configure(const jv::JV* options) {
    convention_ = optionsNamingConvention(options, id());
}

void NamingHandler::judge(std::string_view name, const char* message, const openapi::Node& node) const {
    if (convertCase(name, convention_) != name)
        report(fmt::format(fmt::runtime(message), name, caseStyleName(convention_)), node);
}

} // namespace specloom::openapi_lint
