#pragma once

#include <memory>      // std::unique_ptr
#include <string_view> // std::string_view

/// Tracing spans, written to a local file. Nothing leaves the machine. For use from one thread.
///
///     initTelemetry(".specloom.telemetry");
///     {
///         const Span run("cli_command_format");
///         const Span read("read"); // a child of the other
///     }
///     shutdownTelemetry();
namespace specloom::telemetry {

/// Starts to record: empties `fileName` (relative to the working directory, UTF-8) and writes every later
/// span to it, in the text form of OpenTelemetry's ostream exporter. A missing file is made, for its owner
/// alone (mode 0600). Where that cannot be done, or the name stands for anything but a regular file with that
/// one name (a link, a pipe, a folder), nothing is recorded and nothing is said. What an earlier call started
/// is shut down first.
void initTelemetry(std::string_view fileName);

/// Writes out what is pending and closes the file; later spans record nothing. Without initTelemetry() it
/// does nothing. Open spans must have ended.
void shutdownTelemetry();

/// A stage of the run, from construction to destruction. A span that is made while another one is open
/// becomes its child. Each costs a write to the file when it ends, so spans stand around whole stages, never
/// around values or rules. When nothing was started, or nothing any more, a span has no effect.
class Span {
  public:
    explicit Span(std::string_view name);
    ~Span();
    Span(const Span&) = delete;
    Span& operator=(const Span&) = delete;

  private:
    struct Running;
    std::unique_ptr<Running> running_; // null without telemetry
};

} // namespace specloom::telemetry
