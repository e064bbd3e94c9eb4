#pragma once

#include "foundation/unreachable.h"
#include "openapi_diff/report.h"
#include "reporting/formatter.h"

#include <concepts>    // std::derived_from
#include <iosfwd>      // std::ostream
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view
#include <vector>      // std::vector

namespace specloom::openapi_diff {

/// Writes one report in one format.
using Formatter = reporting::Formatter<Report>;

/// A formatter of the reports of one class.
template <std::derived_from<Report> R>
class BasicFormatter : public Formatter {
  public:
    using Formatted = R;
    using Formatter::Formatter;

    /// A report of another class is an unreachable path.
    void format(const Report& report) final {
        const auto* formatted = dynamic_cast<const R*>(&report);
        if (formatted == nullptr)
            SPECLOOM_UNREACHABLE("The formatter is for another report");
        write(*formatted);
    }

  protected:
    virtual void write(const R& report) = 0;
};

/// The format that reports have when nobody chooses.
inline constexpr std::string_view defaultFormat = "stylish";

/// The formatter of a format for a report (reportNames()). Any other pair throws std::runtime_error "Invalid
/// formatter ({}) or report ({}) name".
[[nodiscard]] std::unique_ptr<Formatter> createFormatter(std::string_view format, std::string_view report,
                                                         std::ostream& stream);

/// The names of all formats, in byte-wise order.
[[nodiscard]] std::vector<std::string_view> formatNames();

} // namespace specloom::openapi_diff
