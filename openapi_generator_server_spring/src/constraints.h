#pragma once

#include "openapi_generator_server_spring/context.h"

#include <vector> // std::vector

namespace specloom::openapi_generator::server_spring {

/// The annotations that the constraints of a schema become: @NotNull, @Size and @Pattern. Adds issues for
/// what cannot become any.
[[nodiscard]] std::vector<Constraint> constraintsOf(const openapi::Schema& schema, Context& context);

} // namespace specloom::openapi_generator::server_spring
