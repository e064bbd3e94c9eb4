#pragma once

#include "jv/jv_error.h"

namespace specloom::configuration {

/// A value of a configuration is not what its reader takes. The typed getters of JV throw plain JVErrors,
/// with the object that was asked instead of the value.
class ConfigError : public jv::JVError {
  public:
    using JVError::JVError;
};

} // namespace specloom::configuration
