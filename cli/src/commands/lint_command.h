#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Checks OpenAPI documents by the rules of a configuration, or by the recommended ones, and writes a report
/// on each to standard output. With --fix it writes the documents back with what could be mended.
///
/// Findings are no failure: the exit status tells only whether the work could be done.
class LintCommand final : public Command {
  public:
    LintCommand() : Command("lint") {}
    void configure(App& app) override;

    /// Throws what loading the configuration, finding the formatter, reading the documents and linting them
    /// throws.
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
