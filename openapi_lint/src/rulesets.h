#pragma once

#include "openapi_lint/ruleset.h"

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_lint {

/// Every rule that fits any API.
class AllRuleset final : public Ruleset {
  public:
    AllRuleset();
};

/// What most APIs gain by; used when there is no configuration.
class RecommendedRuleset final : public Ruleset {
  public:
    RecommendedRuleset();
};

/// The rules of "all", the ones that are a matter of judgement as warnings.
class StrictRuleset final : public Ruleset {
  public:
    StrictRuleset();
};

/// The rules of JSON:API (version 1.1) alone, to be used beside another ruleset.
class JSONAPIRuleset final : public Ruleset {
  public:
    JSONAPIRuleset();
};

/// The ruleset of that name: "all", "json-api", "recommended" or "strict". Throws std::runtime_error "Ruleset
/// not found: " and the name.
[[nodiscard]] std::unique_ptr<Ruleset> findRuleset(std::string_view name);

/// All names, in byte-wise order.
[[nodiscard]] std::vector<std::string_view> rulesetNames();

} // namespace specloom::openapi_lint
