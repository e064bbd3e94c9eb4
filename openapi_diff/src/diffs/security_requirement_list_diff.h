#pragma once

#include "openapi/security_requirement.h"
#include "openapi_diff/diffs/node_diff.h"

#include <memory> // std::unique_ptr
#include <vector> // std::vector

namespace specloom::openapi_diff {

/// One requirement, which stands at a position of a list. There is nothing in it to compare: requirements
/// belong together when they say the same. One that came or went is reported twice, as an element of its list
/// and as a requirement, each with a classification of its own.
class SecurityRequirementDiff final : public NodeDiff {
  public:
    explicit SecurityRequirementDiff(std::int64_t index) noexcept : index_(index) {}

    void diff(const openapi::SecurityRequirement* source, const openapi::SecurityRequirement* destination,
              DiffContext& context) const;

  private:
    std::int64_t index_;
};

/// The security requirements of the document or an operation. Those with the same schemes and scopes, in any
/// order, belong together, and then those with the same schemes, which are modified.
class SecurityRequirementListDiff final : public NodeDiff {
  public:
    using List = std::vector<std::unique_ptr<openapi::SecurityRequirement>>;
    explicit SecurityRequirementListDiff(ConfigKey key) noexcept : key_(key) {}

    void diff(const List* source, const List* destination, DiffContext& context) const;

  private:
    ConfigKey key_;
};

} // namespace specloom::openapi_diff
