#pragma once

#include "openapi_lint/rule.h"

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_lint {

/// A rule of that id and severity, with its default options. Throws std::runtime_error "Rule not found: " and
/// the id.
[[nodiscard]] std::unique_ptr<Rule> findRule(std::string_view id, Severity severity);

/// Whether findRule() knows the id.
[[nodiscard]] bool isRuleKnown(std::string_view id);

/// All ids, in byte-wise order.
[[nodiscard]] std::vector<std::string_view> ruleIds();

} // namespace specloom::openapi_lint
