#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Compares two versions of an OpenAPI document and writes a report of what changed to standard output. With
/// --update-version it writes the second one back with the version that the changes ask for.
///
/// The exit status is 1 when a change is breaking.
class DiffCommand final : public Command {
  public:
    DiffCommand() : Command("diff") {}
    void configure(App& app) override;

    /// Throws what loading the configuration, reading, comparing and writing documents throw.
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
