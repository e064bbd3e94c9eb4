#include "openapi_lint/rules/id_defined.h"

#include "foundation/message.h"
#include "openapi_lint/disabling.h"
#include "openapi_lint/lint_context.h"
#include "openapi_lint/rule_options.h"
#include "openapi_lint/uuid.h"

#include <utility> // std::move

#include <fmt/format.h>

namespace specloom::openapi_lint {
namespace {

constexpr char identifierMissing[] = "API identifier ({}) is missing";
constexpr char identifierInvalid[] = "API identifier ({}) has invalid format";

constexpr char idOptionsNoObject[] = "Options must be an object";
constexpr char attributeEmpty[] = "Attribute name must not be empty";
constexpr char attributeNoExtension[] = "Attribute name must start with 'x-'";
constexpr char patternEmpty[] = "Pattern must not be empty";
constexpr char patternInvalid[] = "Pattern is not a regular expression: {} ({})";

constexpr std::string_view uuidPattern = "uuid";

/// Of the whole text. The expression must stand on its own: a parenthesis too many would pair with ours.
regex::Pattern wholePattern(const std::string& expression) {
    try {
        (void)regex::Pattern(expression);
        return regex::Pattern(fmt::format("^(?:{})$", expression));
    } catch (const regex::SyntaxError& error) {
        throw RuleConfigurationError(IDDefined::ruleId,
                                     formatMessage(patternInvalid, expression, error.what()));
    }
}

std::string option(const jv::JV& options, std::string_view name, std::string_view byDefault) {
    const jv::JV* value = options.get(name);
    return std::string(value == nullptr ? byDefault : textOf(*value, name));
}

} // namespace

void IDDefined::configure(const jv::JV* options) {
    const jv::JV& given = requireOptions(options, ruleId);
    if (!given.isObject())
        throw RuleConfigurationError(ruleId, idOptionsNoObject);
    std::string attribute = option(given, "attribute", "x-id");
    if (attribute.empty())
        throw RuleConfigurationError(ruleId, attributeEmpty);
    if (!attribute.starts_with("x-"))
        throw RuleConfigurationError(ruleId, attributeNoExtension);
    const std::string pattern = option(given, "pattern", uuidPattern);
    if (pattern.empty())
        throw RuleConfigurationError(ruleId, patternEmpty);
    if (pattern == uuidPattern)
        pattern_.reset();
    else
        pattern_ = wholePattern(pattern);
    attribute_ = std::move(attribute);
}

bool IDDefined::isValid(const jv::JV& identifier) const {
    if (!identifier.isString())
        return false;
    if (!pattern_)
        return isUuid(identifier.text());
    return pattern_->search(identifier.text()) == regex::Pattern::Outcome::Match;
}

void IDDefined::check(LintContext& context) {
    const openapi::OpenAPI& root = context.root();
    const openapi::Info& info = root.info();
    if (isDisabled(*this, &info, &root))
        return;
    const jv::JV* identifier = info.findExtension(attribute_);
    if (identifier == nullptr)
        report(context, fmt::format(identifierMissing, attribute_), info);
    else if (!isValid(*identifier))
        report(context, fmt::format(identifierInvalid, attribute_), info);
}

void IDDefined::fix(LintContext& context) {
    openapi::OpenAPI& root = context.root();
    openapi::Info& info = root.info();
    if (pattern_ || isDisabled(*this, &info, &root))
        return;
    const jv::JV* identifier = info.findExtension(attribute_);
    if (identifier != nullptr && isValid(*identifier))
        return;
    const std::string uuid = newUuid();
    if (info.source() != nullptr)
        context.edits().setMember(*info.source(), attribute_, std::make_unique<jv::JV>(uuid));
    info.replaceExtension(attribute_, openapi::Value(std::make_unique<jv::JV>(uuid)));
}

} // namespace specloom::openapi_lint
