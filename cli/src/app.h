#pragma once

#include "cli/argument_parser.h"
#include "cli/command.h"

#include <cstdint> // std::int32_t
#include <memory>  // std::unique_ptr
#include <vector>  // std::vector

namespace specloom::cli {

/// The application: its commands, the command line that chooses one of them, and telemetry for as long as it
/// lives. One object serves one run of the program.
class App {
  public:
    /// Starts telemetry in the file ".specloom.telemetry" of the working directory, before any argument is
    /// read.
    App();

    /// Closes the telemetry file.
    ~App();

    App(const App&) = delete;
    App& operator=(const App&) = delete;

    /// Creates the commands in their order and lets each declare its arguments. Also separates standard
    /// output from the C library's, which makes writing to it much faster.
    void registerCommands();

    /// Attaches a command's parser to the command line; called by Command::configure().
    void addCommandLine(ArgumentParser& commandParser) { parser_.addSubparser(commandParser); }

    /// Reads the command line, runs the command that it names and returns that command's status; without a
    /// command exit_status::noCommand, silently. Help and version end the process. All else that ends a run
    /// is an exception.
    [[nodiscard]] std::int32_t run(int argc, char** argv);

    /// The whole command line, without a run: no telemetry file is written.
    [[nodiscard]] static CommandDescription describeCommandLine();

  private:
    struct WithoutTelemetry {};
    explicit App(WithoutTelemetry);

    ArgumentParser parser_;
    std::vector<std::unique_ptr<Command>> commands_;
};

} // namespace specloom::cli
