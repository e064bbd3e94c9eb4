#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Declared, and without any behaviour yet: it prints nothing and succeeds.
class ServerCommand final : public Command {
  public:
    ServerCommand() : Command("server") {}
    void configure(App& app) override;
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
