#pragma once

#include "openapi_diff/change.h"

#include <array>       // std::array
#include <cstddef>     // std::size_t
#include <memory>      // std::unique_ptr
#include <optional>    // std::optional
#include <string>      // std::string
#include <string_view> // std::string_view

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

    /// The path of one of the documents in UTF-8; "<unknown>" for one that came from no file.
    [[nodiscard]] std::string_view fileName(DocumentSide side) const;
    void setFileNames(std::optional<std::string> source, std::optional<std::string> destination);

  protected:
    /// Nested is an unreachable path.
    void record(ChangeLevel level);

  private:
    ChangeLevel level_ = ChangeLevel::None;
    std::array<std::size_t, 4> counts_{};
    std::optional<std::string> sourceFile_;
    std::optional<std::string> destinationFile_;
};

/// "status", "changelog" or "detailed". Any other name throws std::runtime_error "Result not found: " and the
/// name.
[[nodiscard]] std::unique_ptr<Report> createReport(std::string_view name);

} // namespace specloom::openapi_diff
