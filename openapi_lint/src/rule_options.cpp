#include "openapi_lint/rule_options.h"

#include "configuration/section.h"
#include "foundation/message.h"

#include <string> // std::string

namespace specloom::openapi_lint {

const jv::JV& requireOptions(const jv::JV* options, std::string_view ruleId) {
    if (options == nullptr)
        throw RuleConfigurationError(ruleId, "Options must not be null");
    return *options;
}

std::string_view textOf(const jv::JV& value, std::string_view name) {
    return configuration::textOf(value, formatMessage("A string value is expected for '{}'.", name));
}

NamingConvention optionsNamingConvention(const jv::JV* options, std::string_view ruleId) {
    const jv::JV& value = requireOptions(options, ruleId);
    if (!value.isString())
        throw RuleConfigurationError(ruleId, "Options must be a string");
    return parseNamingConvention(value.text(), ruleId);
}

number::Number optionsPositiveNumber(const jv::JV* options, std::string_view ruleId) {
    const jv::JV& value = requireOptions(options, ruleId);
    if (!value.isNumber() && !value.isString())
        throw RuleConfigurationError(ruleId, "Options must be a string or an object");
    if (!value.isNumber())
        throw jv::JVError(formatMessage("A numeric value is expected for '{}'.", ruleId), &value);
    number::Number minimum = value.number();
    if (minimum.compare(0) <= 0)
        throw RuleConfigurationError(ruleId, "Minimal description length must be a positive number");
    return minimum;
}

number::Number optionsMaximumForPaths(const jv::JV* options, std::string_view ruleId) {
    const jv::JV& value = requireOptions(options, ruleId);
    if (!value.isNumber())
        throw RuleConfigurationError(ruleId, "Options must be a number");
    number::Number maximum = value.number();
    if (maximum.compare(0) <= 0)
        throw RuleConfigurationError(ruleId, "Max path count must be a positive number");
    return maximum;
}

} // namespace specloom::openapi_lint
