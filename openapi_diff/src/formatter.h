#pragma once

#include "openapi_diff/report.h"

#include <iosfwd>      // std::ostream
#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

namespace specloom::openapi_diff {

/// Writes one report in one format.
class Formatter {
  public:
    Formatter() = default;
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;
    virtual ~Formatter() = default;

    /// The report must be of the class that the formatter was made for.
    virtual void format(const Report& report) = 0;
};

/// A formatter with the stream that it writes to, which must outlive it.
class BasicFormatter : public Formatter {
  protected:
    explicit BasicFormatter(std::ostream& stream) : stream_(stream) {}
    [[nodiscard]] std::ostream& stream() const noexcept { return stream_; }

  private:
    std::ostream& stream_;
};

/// The formatter of a format ("html", "json", "markdown", "stylish", "unix", "visualstudio") for a report
/// ("status", "changelog", "detailed"). Any other pair throws std::runtime_error "Invalid formatter ({}) or
/// report ({}) name".
[[nodiscard]] std::unique_ptr<Formatter> createFormatter(std::string_view format, std::string_view report,
                                                         std::ostream& stream);

} // namespace specloom::openapi_diff
