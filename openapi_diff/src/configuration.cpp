#include "openapi_diff/configuration.h"

namespace specloom::openapi_diff {} // namespace specloom::openapi_diff
