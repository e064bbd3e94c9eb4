#pragma once

#include "openapi/schema_fields.h"
#include "openapi_diff/diff_context.h"

namespace specloom::openapi_diff {

/// Compares the schemas of an `allOf`, `oneOf`, `anyOf` or `prefixItems`, each pair in a scope of its own. A
/// list may be null. References to components of one name belong together, then schemas of one title, then
/// equal ones, and what is left goes together in its order.
void diffComposedSchemas(ConfigKey key, const openapi::NodeList* source, const openapi::NodeList* destination,
                         DiffContext& context);

} // namespace specloom::openapi_diff
