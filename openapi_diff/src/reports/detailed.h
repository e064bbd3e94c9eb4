#pragma once

#include "openapi_diff/report.h"

#include <vector> // std::vector

namespace specloom::openapi_diff {

/// Every change. What an added or removed thing consists of stands behind it.
class DetailedReport final : public Report {
  public:
    void add(const Change& change) override;

    /// In the order in which the documents were walked.
    [[nodiscard]] const std::vector<Change>& changes() const noexcept { return changes_; }

  private:
    std::vector<Change> changes_;
};

} // namespace specloom::openapi_diff
