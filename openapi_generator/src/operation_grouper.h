#pragma once

#include "openapi/operation_ref.h"

#include <cstdint>     // std::uint8_t
#include <functional>  // std::less
#include <map>         // std::map
#include <string>      // std::string
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_generator {

/// What decides to which group an operation belongs.
enum class GroupingCriterion : std::uint8_t {
    Tag = 1,       ///< its first tag
    Extension = 2, ///< controllerNameOf() it, or else its path item
    Url = 3,       ///< its URL in camel case
};

/// Of "tag", "extension" or "url". Throws std::runtime_error "Unknown grouping criterium: {}" for another
/// text.
[[nodiscard]] GroupingCriterion parseGroupingCriterion(std::string_view text);

/// Sorts the operations of a document into named groups.
class OperationGrouper {
  public:
    void setSkipDeprecated(bool isSkipped) noexcept { skipDeprecated_ = isSkipped; }
    /// Leaves out what isDisabled() says of an operation or its path item.
    void setSkipDisabled(bool isSkipped) noexcept { skipDisabled_ = isSkipped; }
    /// Appends a criterion. The first that yields a name for an operation decides.
    void addCriterion(GroupingCriterion criterion) { criteria_.push_back(criterion); }

    /// Adds every operation of the document that is not left out, in their order.
    void group(const openapi::OpenAPI& root);

    using Groups = std::map<std::string, std::vector<openapi::OperationRef>, std::less<>>;
    [[nodiscard]] const Groups& groups() const noexcept { return groups_; }
    /// Those for which no criterion yields a name.
    [[nodiscard]] const std::vector<openapi::OperationRef>& ungrouped() const noexcept { return ungrouped_; }

  private:
    [[nodiscard]] bool isSkipped(const openapi::OperationRef& ref) const;

    bool skipDeprecated_ = false;
    bool skipDisabled_ = false;
    std::vector<GroupingCriterion> criteria_;
    Groups groups_;
    std::vector<openapi::OperationRef> ungrouped_;
};

} // namespace specloom::openapi_generator
