#include "openapi_generator_server_spring/constraints.h"

#include "code_morph_java/spring/annotations.h"
#include "code_morph_java/string_literal.h"

#include <algorithm> // std::any_of
#include <cstdint>   // std::int32_t, std::int64_t, std::uint64_t
#include <limits>    // std::numeric_limits
#include <optional>  // std::optional
#include <utility>   // std::pair

namespace specloom::openapi_generator::server_spring {
namespace {

namespace annotations = code_morph::java::annotations;
using openapi::SchemaKeyword;

constexpr std::pair<SchemaKeyword, SchemaKeyword> sizeKeywords[] = {
    {SchemaKeyword::MinItems, SchemaKeyword::MaxItems},
    {SchemaKeyword::MinLength, SchemaKeyword::MaxLength},
    {SchemaKeyword::MinProperties, SchemaKeyword::MaxProperties},
};

bool refusesNull(const openapi::Schema& schema) noexcept {
    return !schema.types().empty() && !schema.types().has(openapi::SchemaType::Null);
}

bool isNotNull(const openapi::Schema& schema) {
    return refusesNull(schema) ||
           std::any_of(schema.allOf().begin(), schema.allOf().end(), [](const openapi::NodePointer& member) {
               const auto* resolved = openapi::resolveTo<openapi::Schema>(member.get());
               return resolved != nullptr && refusesNull(*resolved);
           });
}

/// A bound of @Size, which holds an int.
std::optional<std::int64_t> boundOf(const openapi::Schema& schema, SchemaKeyword keyword, Context& context) {
    const std::optional<std::uint64_t> bound = schema.count(keyword);
    if (!bound)
        return std::nullopt;
    if (*bound <= static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max()))
        return static_cast<std::int64_t>(*bound);
    context.addIssue(IssueSeverity::Warning,
                     formatMessage("Bound {} is beyond the range of a Size annotation, skipping", *bound),
                     schema);
    return std::nullopt;
}

void addSize(const openapi::Schema& schema, std::vector<Constraint>& constraints, Context& context) {
    bool isPresent = false;
    for (const auto& [least, most] : sizeKeywords) {
        if (!schema.has(least) && !schema.has(most))
            continue;
        if (isPresent) {
            context.addIssue(IssueSeverity::Error,
                             "Schema has multiple Size annotations for multiple types, skipping", schema);
            continue;
        }
        isPresent = true;
        const std::string text =
            code_morph::java::sizeAnnotation(boundOf(schema, least, context), boundOf(schema, most, context));
        if (!text.empty())
            constraints.push_back({text, annotations::size.import});
    }
}

void addPattern(const openapi::Schema& schema, std::vector<Constraint>& constraints, Context& context) {
    const std::optional<std::string_view> pattern = schema.pattern();
    if (!pattern)
        return;
    if (code_morph::java::fitsConstant(*pattern))
        constraints.push_back({code_morph::java::patternAnnotation(*pattern), annotations::pattern.import});
    else
        context.addIssue(IssueSeverity::Warning, "Pattern is too long for Java, skipping", schema);
}

} // namespace

std::vector<Constraint> constraintsOf(const openapi::Schema& schema, Context& context) {
    std::vector<Constraint> constraints;
    if (isNotNull(schema))
        constraints.push_back({std::string(annotations::notNull.text), annotations::notNull.import});
    addSize(schema, constraints, context);
    addPattern(schema, constraints, context);
    return constraints;
}

} // namespace specloom::openapi_generator::server_spring
