#pragma once

#include <stdexcept> // std::runtime_error

#include "foundation/message.h"
#include "jv/jv.h"

namespace specloom::openapi_generator {

/// A value of the configuration that a plugin cannot use.
class ConfigError : public std::runtime_error {
  public:
    ConfigError(const Message& message, const jv::JV* value)
        : std::runtime_error(message.composed()), value_(value) {}

    /// The value at fault, or null; it lives as long as the configuration.
    [[nodiscard]] const jv::JV* value() const noexcept { return value_; }

  private:
    const jv::JV* value_;
};

} // namespace specloom::openapi_generator
