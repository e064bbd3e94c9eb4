#pragma once

#include "cli/command.h"

namespace specloom::cli {

/// Writes the texts of a document that are to be translated.
class I18NCommand final : public Command {
  public:
    I18NCommand() : Command("i18n") {}
    void configure(App& app) override;
    [[nodiscard]] std::int32_t run() override;
};

} // namespace specloom::cli
