#pragma once

#include "foundation/message.h"

#include <stdexcept>   // std::runtime_error
#include <string>      // std::string
#include <string_view> // std::string_view

namespace specloom::openapi_lint {

/// A rule cannot be configured as the configuration asks.
class RuleConfigurationError : public std::runtime_error {
  public:
    RuleConfigurationError(std::string_view ruleId, const Message& message)
        : std::runtime_error(message.composed()), ruleId_(ruleId) {}

    [[nodiscard]] const std::string& ruleId() const noexcept { return ruleId_; }

  private:
    std::string ruleId_;
};

} // namespace specloom::openapi_lint
