#include "openapi_generator_data/pattern_warnings.h"

#include "egret/check.h"
#include "foundation/message.h"

#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_generator::data {

namespace {

using jv::JV;

[[nodiscard]] std::uint64_t countOr(const JV& schema, std::string_view keyword, std::uint64_t otherwise) {
    const JV* value = schema.get(keyword);
    if (value == nullptr || !value->isInteger() || value->number().kind() != number::NumberKind::Unsigned)
        return otherwise;
    return value->number().unsignedValue();
}

/// What the schema says of the texts besides the pattern, which is that of its `pattern`.
[[nodiscard]] std::vector<egret::Warning> warningsOf(const jv_generator::UsedPattern& used) {
    const JV& schema = *used.schema;
    const JV* pattern = schema.get("pattern");
    if (pattern == nullptr || !pattern->isString() || pattern->text() != used.pattern)
        return egret::check(used.pattern); // of the names of properties
    egret::PatternUse use;
    use.lengths = {countOr(schema, "minLength", 0), countOr(schema, "maxLength", UINT64_MAX)};
    std::vector<std::string> values;
    if (const JV* enumeration = schema.get("enum"); enumeration != nullptr && enumeration->isArray()) {
        for (const JV* value : enumeration->elements()) {
            if (value->isString())
                values.emplace_back(value->text());
        }
    }
    use.enumeration = values;
    if (const JV* format = schema.get("format"); format != nullptr && format->isString())
        use.format = format->text();
    return egret::check(used.pattern, use);
}

/// Texts of YAML have no place of their own.
[[nodiscard]] jv::Pos placeOf(const jv_generator::UsedPattern& used) {
    const JV* pattern = used.schema->get("pattern");
    return pattern != nullptr && pattern->pos().isKnown() ? pattern->pos() : used.schema->pos();
}

} // namespace

std::vector<Issue> warningsOfPatterns(const std::vector<jv_generator::UsedPattern>& patterns) {
    std::vector<Issue> issues;
    for (const jv_generator::UsedPattern& used : patterns) {
        for (const egret::Warning& warning : warningsOf(used))
            issues.push_back({IssueSeverity::Warning,
                              formatMessage("{} ({})", warning.message, warning.id).composed(),
                              placeOf(used)});
    }
    return issues;
}

} // namespace specloom::openapi_generator::data
