#pragma once

#include <iosfwd> // std::ostream

namespace specloom::reporting {

/// A form of reports of one class.
template <typename Report>
class Formatter {
  public:
    /// The stream must outlive the formatter.
    explicit Formatter(std::ostream& stream) noexcept : stream_(stream) {}
    virtual ~Formatter() = default;
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    /// Writes the report to the stream, whose failures are its own.
    virtual void format(const Report& report) = 0;

  protected:
    [[nodiscard]] std::ostream& stream() const noexcept { return stream_; }

  private:
    std::ostream& stream_;
};

} // namespace specloom::reporting
