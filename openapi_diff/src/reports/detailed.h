#pragma once

#include "openapi_diff/report.h"

#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_diff {

/// Every change. What an added or removed thing consists of stands behind it.
class DetailedReport final : public Report {
  public:
    static constexpr std::string_view name = "detailed";

    void add(const Change& change) override;

    /// In the order in which the documents were walked.
    [[nodiscard]] const std::vector<Change>& changes() const noexcept { return changes_; }

  private:
    std::vector<Change> changes_;
};

} // namespace specloom::openapi_diff
