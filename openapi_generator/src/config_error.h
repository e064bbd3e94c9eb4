#pragma once

#include "configuration/config_error.h"

namespace specloom::openapi_generator {

using configuration::ConfigError;

} // namespace specloom::openapi_generator
