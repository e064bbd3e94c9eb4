#pragma once

#include "jv/jv.h"

#include <nlohmann/json_fwd.hpp>

namespace specloom::templating {

/// The value as the template engine takes it. Its texts may hold any bytes.
[[nodiscard]] nlohmann::json toData(const jv::JV& value);

} // namespace specloom::templating
