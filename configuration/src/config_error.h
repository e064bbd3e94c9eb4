#pragma once

#include "jv/jv_error.h"
#include "jv/pos.h"

namespace specloom::configuration {

/// A value of a configuration is not what its reader takes. The typed getters of JV throw plain JVErrors,
/// with the object that was asked instead of the value.
class ConfigError : public jv::JVError {
  public:
    using JVError::JVError;
};

/// Where the value at fault begins, counted as the format's reader counts; -1, -1 when that is not known.
[[nodiscard]] jv::Pos positionOf(const jv::JVError& error) noexcept;

} // namespace specloom::configuration
