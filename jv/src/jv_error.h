#pragma once

#include "foundation/message.h"

#include <stdexcept> // std::runtime_error
#include <string>    // std::string

namespace specloom::jv {

class JV;

/// A value is not what its reader needs.
class JVError : public std::runtime_error {
  public:
    JVError(const Message& message, const JV* value)
        : std::runtime_error(message.composed()), value_(value) {}

    /// The value at fault; it lives as long as its document.
    [[nodiscard]] const JV* value() const noexcept { return value_; }

  private:
    const JV* value_;
};

} // namespace specloom::jv
