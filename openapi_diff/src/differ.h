#pragma once

#include "openapi/read_result.h"
#include "openapi_diff/configuration.h"
#include "openapi_diff/formatter.h"
#include "openapi_diff/report.h"

#include <iosfwd>      // std::ostream
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// Compares two documents, writes a report of what changed, and raises the version if asked to.
class Differ {
  public:
    /// What a run ends with.
    struct Outcome {
        ChangeLevel level;  ///< the highest in the report
        ChangeLevel bumped; ///< by which the version was raised; None when its text stayed as it was
    };

    /// With the default report and format and the recommended configuration. The stream must outlive the
    /// differ.
    explicit Differ(std::ostream& stream);

    void configure(Configuration configuration) { configuration_ = std::move(configuration); }
    /// Whether run() raises the version of the destination.
    void setUpdateVersion(bool updateVersion) noexcept { updateVersion_ = updateVersion; }
    /// Throws what createReport() and createFormatter() throw.
    void setReport(std::string_view name);
    void setFormatter(std::string_view format, std::string_view report);

    /// Compares, raises the version of the destination's tree by the level of the report, and writes the
    /// report. Throws what bumpVersion() throws. A differ serves one run: reports gather.
    Outcome run(const openapi::ReadResult& source, openapi::ReadResult& destination);

  private:
    [[nodiscard]] ChangeLevel bump(const openapi::ReadResult& source, openapi::ReadResult& destination) const;

    std::ostream& stream_;
    bool updateVersion_ = false;
    Configuration configuration_;
    std::unique_ptr<Report> report_;
    std::unique_ptr<Formatter> formatter_;
};

} // namespace specloom::openapi_diff
