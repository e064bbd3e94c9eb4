#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Prints the licence texts of the libraries that the program is built on: all of them, one, or the names
/// alone. Opens no span: it touches no document.
class LicenseCommand final : public Command {
  public:
    LicenseCommand() : Command("license") {}
    void configure(App& app) override;

    /// exit_status::failure for a name that no library has, so that a pipeline notices a misspelt one.
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
