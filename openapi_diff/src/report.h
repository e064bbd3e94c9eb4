#pragma once

#include "openapi_diff/change.h"

#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_diff {

/// Receives each finished change and keeps what its formatters need.
class Report {
  public:
    Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;
    virtual ~Report() = default;

    virtual void add(const Change& change) = 0;

    /// The highest level that was recorded.
    [[nodiscard]] ChangeLevel level() const noexcept { return level_; }
    /// How many changes of a level were recorded.
    [[nodiscard]] std::size_t count(ChangeLevel level) const {
        return counts_.at(static_cast<std::size_t>(level));
    }

  protected:
    /// Nested is an unreachable path.
    void record(ChangeLevel level);

  private:
    ChangeLevel level_ = ChangeLevel::None;
    std::array<std::size_t, 4> counts_{};
};

/// The report that is made when nobody chooses.
inline constexpr std::string_view defaultReport = "changelog";

/// A report of that name. Throws std::runtime_error "Result not found: " and the name.
[[nodiscard]] std::unique_ptr<Report> createReport(std::string_view name);

/// The names of all reports, that with the least to tell first.
[[nodiscard]] std::vector<std::string_view> reportNames();

} // namespace specloom::openapi_diff
