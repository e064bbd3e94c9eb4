#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Rewrites OpenAPI documents in canonical form: in place, beside the source when the configuration asks for
/// the other format, or to the file given by --output.
///
/// A document is rendered whole before its target is truncated, so whatever fails before leaves the target as
/// it is.
class FormatCommand final : public Command {
  public:
    FormatCommand() : Command("format") {}
    void configure(App& app) override;

    /// Throws what loading the configuration and the documents throws, and std::runtime_error with
    ///   "Only one input file is allowed when using --output."
    ///   "Failed to open file for writing: {}", "Unknown file format: {}", "Failed to write file: {}" with
    ///   the path.
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
