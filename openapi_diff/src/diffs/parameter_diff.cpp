#include "openapi_diff/diffs/parameter_diff.h"

#include "openapi_diff/diffs/examples_diff.h"
#include "openapi_diff/diffs/schema_or_media_type_diff.h"
#include "openapi_diff/diffs/style_text.h"

namespace specloom::openapi_diff {
namespace {

using openapi::Parameter;
using openapi::QueryParameter;

const QueryParameter* asQuery(const Parameter& parameter) {
    return parameter.type() == openapi::NodeType::QueryParameter
               ? static_cast<const QueryParameter*>(&parameter)
               : nullptr;
}

bool allowsEmptyValue(const Parameter& parameter) {
    const QueryParameter* query = asQuery(parameter);
    return query != nullptr && query->allowEmptyValue().value_or(false);
}

bool allowsReserved(const Parameter& parameter) {
    const QueryParameter* query = asQuery(parameter);
    return query != nullptr && query->allowReserved().value_or(false);
}

} // namespace

void ParameterDiff::diff(const Parameter* source, const Parameter* destination, DiffContext& context) const {
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ParameterName, source, destination, &Parameter::name);
    context.field(ParameterIn, source, destination,
                  [](const Parameter& node) { return parameterLocationName(node.location()); });
    context.field(ParameterDescription, source, destination, &Parameter::description);
    context.field(ParameterRequired, source, destination, &Parameter::isRequired);
    context.field(ParameterDeprecated, source, destination, &Parameter::deprecated);
    context.field(ParameterAllowEmptyValue, source, destination, allowsEmptyValue);
    context.field(ParameterStyle, source, destination, styleOf<Parameter>);
    context.field(ParameterExplode, source, destination, &Parameter::explode);
    context.field(ParameterAllowReserved, source, destination, allowsReserved);
    SchemaOrMediaTypeDiff(ParameterSchema, ParameterContent).diff(source, destination, context);
    ExamplesDiff(ParameterExample, ParameterExamples).diff(source, destination, context);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
