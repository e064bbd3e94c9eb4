#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Names the libraries that the program is built on, with their project pages. Opens no span: it touches no
/// document.
class CreditsCommand final : public Command {
  public:
    CreditsCommand() : Command("credits") {}
    void configure(App& app) override;
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
