#pragma once

#include <iosfwd> // std::ostream

namespace specloom::openapi_lint {

class LintContext;

/// A form of report. Each has a file pair below formatters/ and a line in the table of
/// formatter_registry.cpp.
class Formatter {
  public:
    virtual ~Formatter() = default;
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    /// Writes the report on all results of the context. Failures of the stream are the stream's own.
    virtual void format(const LintContext& context) = 0;

  protected:
    /// The stream must outlive the formatter.
    explicit Formatter(std::ostream& stream) noexcept : stream_(stream) {}
    [[nodiscard]] std::ostream& stream() const noexcept { return stream_; }

  private:
    std::ostream& stream_;
};

} // namespace specloom::openapi_lint
