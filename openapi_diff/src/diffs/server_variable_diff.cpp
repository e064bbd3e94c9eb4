#include "openapi_diff/diffs/server_variable_diff.h"

#include "openapi_diff/diffs/text_sets.h"

namespace specloom::openapi_diff {
namespace {

/// The texts are a set. A text that went away is reported where the source has it.
void diffEnumeration(const openapi::ServerVariable* source, const openapi::ServerVariable* destination,
                     DiffContext& context) {
    const auto before = textsOf(childOf(source, &openapi::ServerVariable::enumeration));
    const auto after = textsOf(childOf(destination, &openapi::ServerVariable::enumeration));
    diffTextSets(ConfigKey::ServerVariableEnum, source, destination, before, after, context);
}

} // namespace

void ServerVariableDiff::diff(const openapi::ServerVariable* source,
                              const openapi::ServerVariable* destination, DiffContext& context) const {
    using openapi::ServerVariable;
    using enum ConfigKey;
    context.mark(source, destination);
    context.field(ServerVariableDescription, source, destination, &ServerVariable::description);
    context.field(ServerVariableDefault, source, destination, &ServerVariable::defaultValue);
    diffEnumeration(source, destination, context);
    diffExtensions(source, destination, context);
}

} // namespace specloom::openapi_diff
